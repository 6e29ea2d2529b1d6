#include "batch/Command.h"
#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/StartUp.h"
#include "batch/Suggestion.h"
#include "language/VltLanguageManager.h"

#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <clocale>
#include <memory>

namespace {

using namespace vlt::batch;
using vlt::Result;

const QString HelpCommand = QStringLiteral("help");

const Command *commandOf(const QString &name)
{
    const auto found =
        std::find_if(commands().begin(), commands().end(),
                     [&name](const Command &command) { return command.syntax().name == name; });
    return found == commands().end() ? nullptr : &*found;
}

ExitStatus answer(const QString &text)
{
    return printOut(text) ? ExitStatus::Done : ExitStatus::Refused;
}

ExitStatus refuseCommand(const QString &name)
{
    QStringList names = {HelpCommand};
    for (const Command &command : commands())
        names << command.syntax().name;
    return refuseUsage(
        wrongUsage(dico_label("MESS_USE_NO_COMMAND", "unknown command: %1").arg(name) +
                   didYouMean(name, names)));
}

/// Handles --help, --version and a wrong command line; none if the command must run.
std::optional<ExitStatus> answerHelp(const QCommandLineParser &parser,
                                     const Result<GlobalOptions> &options,
                                     const std::function<QString()> &help)
{
    if (!options)
        return refuseUsage(options.error());
    if (parser.isSet(QStringLiteral("help")))
        return answer(help());
    if (parser.isSet(QStringLiteral("version")))
        return answer(versionText());
    return std::nullopt;
}

ExitStatus runCommand(const Command &command, const QStringList &arguments, const Place &place)
{
    const CommandSyntax syntax = command.syntax();
    QCommandLineParser parser;
    const Result<GlobalOptions> options = parseArguments(parser, syntax, arguments, place);
    if (const auto answered = answerHelp(parser, options, [&] { return helpText(syntax, place); }))
        return *answered;
    return command.run(parser, options.value());
}

/// Handles "help", "help COMMAND" and a command line without a command.
ExitStatus runWithoutCommand(const SplitArguments &split, const Place &place)
{
    const bool isHelp = split.command == HelpCommand;
    CommandSyntax syntax;
    syntax.inputs.maximum = isHelp ? 1 : 0;
    QCommandLineParser parser;
    const Result<GlobalOptions> options = parseArguments(parser, syntax, split.others, place);
    if (const auto answered = answerHelp(parser, options, programHelpText))
        return *answered;
    if (!isHelp) {
        if (!split.json)
            printOut(programHelpText());
        reportError(wrongUsage(dico_label("MESS_USE_COMMAND_MISSING", "no command given")),
                    ExitStatus::WrongUsage);
        return ExitStatus::WrongUsage;
    }
    const QString name = parser.positionalArguments().value(0, HelpCommand);
    if (name == HelpCommand)
        return answer(programHelpText());
    const Command *command = commandOf(name);
    return command ? answer(helpText(command->syntax(), place)) : refuseCommand(name);
}

/// @param damaged  an argument whose bytes are not valid text; empty for none
ExitStatus run(const SplitArguments &split, const QString &damaged)
{
    const Place place = settlePlace(split);
    const Command *command = commandOf(split.command);
    setErrorStyle({command ? split.command : QString(), split.json});
    if (!damaged.isEmpty())
        return refuse({QStringLiteral("MESS_CLI_NAME_NOT_UTF8"),
                       QStringLiteral("this name is not in UTF-8: rename the file"), damaged});
    if (command)
        return runCommand(*command, split.others, place);
    if (split.command.isEmpty() || split.command == HelpCommand)
        return runWithoutCommand(split, place);
    return refuseCommand(split.command);
}

/// The application object. With fonts it can draw texts; it needs no display.
std::unique_ptr<QCoreApplication> makeApplication(char **argv, bool withFonts)
{
    static int ownNameOnly = 1;
    // The toolkit warns of a missing desktop and of a locale that is not UTF-8; these warnings are
    // not shown.
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::unique_ptr<QCoreApplication> application;
    if (withFonts) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(ownNameOnly, argv);
    } else {
        application = std::make_unique<QCoreApplication>(ownNameOnly, argv);
    }
    qInstallMessageHandler(previous);
    return application;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    QString damaged;
    for (int i = 0; i < argc; ++i) {
        arguments << QFile::decodeName(argv[i]);
        if (QFile::encodeName(arguments.constLast()) != argv[i])
            damaged = arguments.constLast();
    }

    const SplitArguments split = splitCommand(arguments);
    // Entries of the wizard's log do not appear on the terminal.
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
    const bool drawsProfile =
        split.command == QLatin1String("link") &&
        std::any_of(split.others.begin(), split.others.end(), [](const QString &argument) {
            return argument.startsWith(QLatin1String("--profile"));
        });
    const auto application =
        makeApplication(argv, drawsProfile || split.command == QLatin1String("buildings") ||
                                  split.command == QLatin1String("snapshot"));
    // The application object sets all categories of the user's locale; numbers keep the C locale.
    std::setlocale(LC_NUMERIC, "C");
    return static_cast<int>(run(split, damaged));
}
