#include "batch/Help.h"

#include "batch/AlignedText.h"
#include "batch/Console.h"
#include "geodata/LibraryVersions.h"
#include "language/VltLanguageManager.h"
#include "snapshot/SceneSource.h"

namespace vlt::batch {

namespace {

const QString Program = QStringLiteral("vltlayers");

QString heading(const char *key, const char *text)
{
    return QLatin1Char('\n') + dico_label(key, text) + QLatin1Char('\n');
}

QString examplesText(const QString &examples)
{
    return heading("MESS_HELP_EXAMPLES", "Examples:") + examples;
}

QString exitText()
{
    return QLatin1Char('\n') +
           wrappedText(dico_label("MESS_HELP_EXIT", "Exit status: 0 done, 1 an input was refused "
                                                    "(nothing is written), 2 wrong usage."));
}

QString usageText(const QString &usage)
{
    return dico_label("MESS_HELP_USAGE", "Usage: %1").arg(Program + QLatin1Char(' ') + usage) +
           QLatin1Char('\n');
}

QString optionName(const QCommandLineOption &option)
{
    QStringList names;
    for (const QString &name : option.names())
        names << QLatin1String(name.size() == 1 ? "-" : "--") + name;
    QString text = names.join(QStringLiteral(", "));
    if (option.valueName().startsWith(QLatin1Char('['))) // optional
        text += QStringLiteral("[=<") + option.valueName().mid(1).chopped(1) + QStringLiteral(">]");
    else if (!option.valueName().isEmpty())
        text += QStringLiteral(" <") + option.valueName() + QLatin1Char('>');
    return text;
}

QString optionsText(const QList<QCommandLineOption> &options)
{
    QList<Entry> entries;
    for (const QCommandLineOption &option : options)
        entries << Entry{optionName(option), option.description()};
    return entryList(entries);
}

QString generalOptionsText()
{
    return heading("MESS_HELP_GENERAL_OPTIONS", "Options of every command:") +
           optionsText(globalOptions());
}

} // namespace

QString helpText(const CommandSyntax &syntax, const Place &place)
{
    const QString options = dico_label("MESS_HELP_OPTION", "[OPTION]...");
    QString text =
        usageText(QStringList{syntax.name, options, syntax.usage}.join(QLatin1Char(' '))) +
        wrappedText(syntax.description);
    text += heading("MESS_HELP_ARGUMENTS", "Arguments:") +
            entryList({{syntax.inputs.name, syntax.inputs.meaning}});
    if (!syntax.options.isEmpty())
        text += heading("MESS_HELP_OPTIONS", "Options:") + optionsText(syntax.options);
    text += generalOptionsText();
    if (syntax.lists)
        text += syntax.lists(place);
    return text + examplesText(syntax.examples) + exitText();
}

QString programHelpText()
{
    QList<Entry> entries;
    QString examples;
    for (const Command &command : commands()) {
        const CommandSyntax syntax = command.syntax();
        entries << Entry{syntax.name + QLatin1Char(' ') + syntax.usage, syntax.summary};
        examples += syntax.examples.section(QLatin1Char('\n'), 0, 0) + QLatin1Char('\n');
    }
    entries << Entry{dico_label("MESS_HELP_HELP", "help [COMMAND]"),
                     dico_label("MESS_HELP_HELP_SUMMARY", "show the options of a command")};
    return usageText(dico_label("MESS_HELP_PROGRAM_USAGE", "COMMAND [OPTION]...")) +
           wrappedText(
               dico_label("MESS_HELP_PROGRAM",
                          "Makes layers of a 3D project from telecom tables and buildings.")) +
           heading("MESS_HELP_COMMANDS", "Commands:") + entryList(entries) + generalOptionsText() +
           examplesText(examples) + exitText();
}

QString versionText()
{
    const QStringList lines = QStringList{Program + QStringLiteral(" " VLT_VERSION),
                                          QStringLiteral("Qt ") + QLatin1String(qVersion())} +
                              geodata::libraryVersions() + QStringList{snapshot::libraryVersion()};
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

ExitStatus refuseUsage(const Error &fault)
{
    const QString command = errorStyle().command;
    reportError(fault, ExitStatus::WrongUsage);
    printError(dico_label("MESS_USE_TRY", "try '%1'")
                   .arg(QStringList{Program, command, QStringLiteral("--help")}
                            .join(QLatin1Char(' '))
                            .simplified()));
    return ExitStatus::WrongUsage;
}

} // namespace vlt::batch
