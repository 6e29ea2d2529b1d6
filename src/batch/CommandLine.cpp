#include "batch/CommandLine.h"

#include "batch/Command.h"
#include "batch/OutputFiles.h"
#include "batch/Suggestion.h"
#include "language/VltLanguageManager.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace vlt::batch {

namespace {

const QString Install = QStringLiteral("install");
const QString Project = QStringLiteral("project");
const QString Language = QStringLiteral("language");
const QString Json = QStringLiteral("json");

/// Global options with a value.
const QStringList ValueNames = {Install, Project, Language};

bool isLanguage(const QString &text)
{
    return text == QLatin1String("fr") || text == QLatin1String("en");
}

QString dashed(const QString &name)
{
    return QLatin1String(name.size() == 1 ? "-" : "--") + name;
}

/// The option as it was typed: the parser reports only the first letter of an unknown "-frob".
QString typed(const QString &name, const QStringList &arguments)
{
    for (const QString &argument : arguments.mid(1)) {
        QString option = argument.section(QLatin1Char('='), 0, 0);
        if (option == QLatin1String("--") + name ||
            (name.size() == 1 && option.startsWith(QLatin1Char('-')) &&
             !option.startsWith(QLatin1String("--")) && option.mid(1).contains(name)))
            return option;
    }
    return dashed(name);
}

Error unknownOption(const QString &name, const CommandSyntax &syntax, const QStringList &arguments)
{
    QStringList known;
    for (const QCommandLineOption &option : syntax.options + globalOptions()) {
        for (const QString &each : option.names())
            known << dashed(each);
    }
    const QString given = typed(name, arguments);
    const QString text = dico_label("MESS_USE_UNKNOWN_OPTION", "unknown option '%1'").arg(given);
    return wrongUsage(text + didYouMean(given, known));
}

/// The error for arguments that the parser did not understand.
Error misunderstood(const QCommandLineParser &parser, const CommandSyntax &syntax,
                    const QStringList &arguments)
{
    if (const QStringList unknown = parser.unknownOptionNames(); !unknown.isEmpty())
        return unknownOption(unknown.constFirst(), syntax, arguments);
    static const QRegularExpression quoted(QStringLiteral("'(.+)'"));
    const QString option = quoted.match(parser.errorText()).captured(1);
    return wrongUsage((option == arguments.constLast()
                           ? dico_label("MESS_USE_NO_VALUE", "%1 needs a value")
                           : dico_label("MESS_USE_A_VALUE", "%1 takes no value"))
                          .arg(option));
}

/// The error for an option with a value that is given twice: only one value could be used.
std::optional<Error> repeated(const QCommandLineParser &parser, const CommandSyntax &syntax)
{
    const QStringList given = parser.optionNames();
    for (const QCommandLineOption &option : syntax.options + globalOptions()) {
        const QStringList names = option.names();
        const auto times = std::count_if(given.begin(), given.end(), [&names](const QString &name) {
            return names.contains(name);
        });
        if (times > 1 && !option.valueName().isEmpty() &&
            !syntax.repeatable.contains(names.constFirst()))
            return wrongUsage(dico_label("MESS_USE_TWICE", "%1 is given more than once")
                                  .arg(dashed(names.constFirst())));
    }
    return std::nullopt;
}

std::optional<Error> checkInputs(const QStringList &given, const Inputs &inputs)
{
    if (given.size() < inputs.minimum || (!given.isEmpty() && given.first().isEmpty()))
        return wrongUsage(inputs.missing);
    if (given.size() > inputs.maximum)
        return wrongUsage(dico_label("MESS_USE_TOO_MANY", "too many arguments: %1")
                              .arg(given.at(inputs.maximum)));
    if (given.contains(QLatin1String("-")))
        return wrongUsage(dico_label("MESS_USE_NO_INPUT",
                                     "'-': inputs are files, the standard input is not read"));
    return std::nullopt;
}

std::optional<Error> checkValues(const QCommandLineParser &parser)
{
    for (const QString &name : ValueNames) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return wrongUsage(
                dico_label("MESS_USE_NO_VALUE", "%1 needs a value").arg(dashed(name)));
    }
    if (parser.isSet(Language) && !isLanguage(parser.value(Language)))
        return wrongValue(Language, QStringLiteral("fr|en"), parser.value(Language));
    return std::nullopt;
}

/// The arguments with a "=" behind options whose value is optional: "[FILE]".
QStringList withOptionalValues(QStringList arguments, const QList<QCommandLineOption> &options)
{
    for (const QCommandLineOption &option : options) {
        if (!option.valueName().startsWith(QLatin1Char('[')))
            continue;
        for (QString &argument : arguments) {
            if (argument == QLatin1String("--")) // files follow
                break;
            if (argument == dashed(option.names().constFirst()))
                argument += QLatin1Char('=');
        }
    }
    return arguments;
}

} // namespace

SplitArguments splitCommand(const QStringList &arguments)
{
    SplitArguments split;
    split.others = arguments.mid(0, 1);
    QStringList values(ValueNames.size());
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const qsizetype known = ValueNames.indexOf(argument.section(QLatin1Char('='), 0, 0).mid(2));
        const bool isKnown = known >= 0 && argument.startsWith(QLatin1String("--"));
        const bool isName = !argument.startsWith(QLatin1Char('-')) && split.command.isEmpty();
        if (isName)
            split.command = argument;
        else
            split.others << argument;
        if (argument == QLatin1String("--json"))
            split.json = true;
        else if (isKnown && argument.contains(QLatin1Char('=')))
            values[known] = argument.section(QLatin1Char('='), 1);
        else if (isKnown && i + 1 < arguments.size())
            split.others << (values[known] = arguments.at(++i));
    }
    split.installDir = values.at(ValueNames.indexOf(Install));
    const QString language = values.at(ValueNames.indexOf(Language));
    if (isLanguage(language))
        split.language = language;
    return split;
}

QList<QCommandLineOption> globalOptions()
{
    return {
        {Install,
         dico_label("MESS_OPT_INSTALL", "Root of the installation (default: the directory in the "
                                        "program's settings, else the program's own directory)."),
         QStringLiteral("DIR")},
        {Project,
         dico_label("MESS_OPT_PROJECT",
                    "Target project: its reference system and terrain determine the default "
                    "coordinate systems, and the path of the table in the layer is relative to its "
                    "directory. For buildings, its buildings and terrain are the defaults."),
         QStringLiteral("P.gvw")},
        {Language, dico_label("MESS_OPT_LANGUAGE", "Language of messages and of the layer."),
         QStringLiteral("fr|en")},
        {Json, dico_label("MESS_OPT_JSON", "Print one JSON object (UTF-8), also for errors.")},
        {QStringLiteral("quiet"),
         dico_label("MESS_OPT_QUIET", "Print only errors on the error output.")},
        {{QStringLiteral("h"), QStringLiteral("help")},
         dico_label("MESS_OPT_HELP", "Show this help.")},
        {QStringLiteral("version"),
         dico_label("MESS_OPT_VERSION", "Show the versions of the program and of its libraries.")},
    };
}

Result<GlobalOptions> parseArguments(QCommandLineParser &parser, const CommandSyntax &syntax,
                                     const QStringList &arguments, const Place &place)
{
    parser.addOptions(syntax.options);
    parser.addOptions(globalOptions());
    if (!parser.parse(withOptionalValues(arguments, syntax.options)))
        return misunderstood(parser, syntax, arguments);

    GlobalOptions options;
    options.place = place;
    options.projectPath = parser.value(Project);
    options.json = parser.isSet(Json);
    options.quiet = parser.isSet(QStringLiteral("quiet"));
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version")))
        return options;

    if (const auto error = repeated(parser, syntax))
        return *error;
    if (const auto error = checkValues(parser))
        return *error;
    if (const auto error = checkInputs(parser.positionalArguments(), syntax.inputs))
        return *error;
    return options;
}

std::optional<Error> checkStandardOutput(const QCommandLineParser &parser,
                                         const QStringList &printing)
{
    if (!isStandardOutput(parser.value(QStringLiteral("output"))))
        return std::nullopt;
    for (const QString &name : printing) {
        if (parser.isSet(name))
            return wrongUsage(
                dico_label("MESS_USE_TWO_OUTPUTS",
                           "'-o -' and %1 cannot be combined: both write to the standard output")
                    .arg(dashed(name)));
    }
    return std::nullopt;
}

Error wrongUsage(const QString &text)
{
    return Error::asIs(text);
}

Error wrongValue(const QString &option, const QString &wanted, const QString &value)
{
    return wrongUsage(
        dico_label("MESS_USE_WRONG_VALUE", "--%1 is %2, not \"%3\"").arg(option, wanted, value));
}

} // namespace vlt::batch
