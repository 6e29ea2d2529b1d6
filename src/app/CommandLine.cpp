#include "app/CommandLine.h"

#include "language/VltLanguageManager.h"

namespace vlt::app {

namespace {

const QString EndOfOptions = QStringLiteral("--");

bool asksFor(const QString &argument, const char *longName, const char *shortName)
{
    return argument == QLatin1String(longName) || argument == QLatin1String(shortName);
}

QString unknownOption(const QString &option)
{
    if (option == QLatin1String("-stylesheet") || option == QLatin1String("--stylesheet"))
        return dico_label("MESS_APP_NO_SHEET", "%1 needs a file").arg(option);
    return dico_label("MESS_APP_UNKNOWN_OPTION", "unknown option \"%1\"").arg(option);
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    CommandLine line;
    QStringList files;
    bool isOver = false;
    for (const QString &argument : arguments) {
        if (!isOver && argument == EndOfOptions)
            isOver = true;
        else if (isOver || !argument.startsWith(QLatin1Char('-')))
            files << argument;
        else if (asksFor(argument, "--help", "-h"))
            line.action = CommandLine::Action::Help;
        else if (asksFor(argument, "--version", "-v"))
            line.action = CommandLine::Action::Version;
        else if (line.error.isEmpty())
            line.error = unknownOption(argument);
    }
    if (files.size() > 1 && line.error.isEmpty())
        line.error = dico_label("MESS_APP_ONE_FILE", "more than one file is given");
    line.file = files.value(0);
    return line;
}

bool asksForText(const QStringList &arguments)
{
    for (const QString &argument : arguments) {
        if (argument == EndOfOptions)
            return false;
        if (asksFor(argument, "--help", "-h") || asksFor(argument, "--version", "-v"))
            return true;
    }
    return false;
}

QString helpText()
{
    return dico_label(
        "MESS_APP_HELP",
        "Usage: VltTelecomLayers [options] [FILE]\n"
        "\n"
        "Opens the wizard that makes layers of telecom sites, links and buildings.\n"
        "\n"
        "  FILE                A project (.gvw) is offered on the project page. A table of\n"
        "                      sites or links, footprints of buildings or a raster is\n"
        "                      opened on its page, with the first recent project.\n"
        "\n"
        "  -h, --help          Prints this text.\n"
        "  -v, --version       Prints the version.\n"
        "  -stylesheet SHEET   Uses this Qt style sheet.\n"
        "\n"
        "The options of every Qt program, such as -platform and -style, work too.\n"
        "vltlayers makes the same layers without a window.");
}

} // namespace vlt::app
