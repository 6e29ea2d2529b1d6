#include "batch/CommandLine.h"

namespace vlt::batch {

namespace {

Error wrongUsage(const QString &text)
{
    return Error{QString(), text, {}};
}

bool takesValue(const QString &argument)
{
    return argument == QLatin1String("--install") || argument == QLatin1String("--project") ||
           argument == QLatin1String("--language");
}

} // namespace

SplitArguments splitCommand(const QStringList &arguments)
{
    SplitArguments split{{}, arguments};
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (takesValue(argument)) {
            ++i;
        } else if (!argument.startsWith(QLatin1Char('-'))) {
            split.command = argument;
            split.others.removeAt(i);
            break;
        }
    }
    return split;
}

void addGlobalOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {QStringLiteral("install"),
         QStringLiteral("Root of the installation (default: where the program's settings say, "
                        "else the program's own directory)."),
         QStringLiteral("DIR")},
        {QStringLiteral("project"),
         QStringLiteral("Target project: its reference system and terrain choose the coordinate "
                        "systems, and the layer names the table relative to it; "
                        "buildings: its buildings and terrain are the defaults."),
         QStringLiteral("P.gvw")},
        {QStringLiteral("language"), QStringLiteral("Language of messages and of the layer."),
         QStringLiteral("fr|en")},
        {QStringLiteral("json"), QStringLiteral("Print one JSON object (UTF-8).")},
        {QStringLiteral("quiet"), QStringLiteral("Tell nothing on the error output but errors.")},
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
        {QStringLiteral("version"), QStringLiteral("Show the version.")},
    });
}

Result<GlobalOptions> parseArguments(QCommandLineParser &parser, const QStringList &arguments,
                                     const Inputs &inputs)
{
    if (!parser.parse(arguments))
        return wrongUsage(parser.errorText());

    GlobalOptions options;
    options.installDir = parser.value(QStringLiteral("install"));
    options.projectPath = parser.value(QStringLiteral("project"));
    options.language = parser.value(QStringLiteral("language"));
    options.json = parser.isSet(QStringLiteral("json"));
    options.quiet = parser.isSet(QStringLiteral("quiet"));
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version")))
        return options;

    for (const char *name : {"install", "project", "language"}) {
        if (parser.isSet(QLatin1String(name)) && parser.value(QLatin1String(name)).isEmpty())
            return wrongUsage(QStringLiteral("--%1 needs a value").arg(QLatin1String(name)));
    }
    if (!options.language.isEmpty() && options.language != QLatin1String("fr") &&
        options.language != QLatin1String("en"))
        return wrongUsage(QStringLiteral("--language is fr or en"));
    const QStringList given = parser.positionalArguments();
    if (given.size() < inputs.least || (!given.isEmpty() && given.first().isEmpty()))
        return wrongUsage(QStringLiteral("no %1 given").arg(inputs.kind));
    if (given.size() > inputs.most)
        return wrongUsage(QStringLiteral("too many arguments: ") + given.at(inputs.most));
    return options;
}

} // namespace vlt::batch
