#pragma once

#include "platform/Result.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

namespace vlt::batch {

struct CommandSyntax;

/// Exit status of the program.
enum class ExitStatus {
    Done = 0,
    Refused = 1,   ///< an input was refused; no output file was touched
    WrongUsage = 2 ///< the command line is wrong
};

/// The directory of the program's files, and the language of its texts.
struct Place
{
    QString installDir; ///< absolute
    QString language;   ///< language code
};

/// Values of the options that every command has.
struct GlobalOptions
{
    Place place;
    QString projectPath; ///< empty for no project
    bool json = false;
    bool quiet = false;
};

/// The arguments, split into the command's name and the others, with the values that are needed
/// before the texts of options. The name is the first argument that is neither an option nor the
/// value of a global option; empty if there is none.
struct SplitArguments
{
    QString command;
    QStringList others; ///< the first one is the program's name
    QString installDir; ///< as given; empty for that of the start-up settings
    QString language;   ///< "fr" or "en"; empty for that of the start-up settings
    bool json = false;
};

SplitArguments splitCommand(const QStringList &arguments);

/// The options that every command has, with --help and --version.
QList<QCommandLineOption> globalOptions();

/// The arguments of a command that are not options.
struct Inputs
{
    int minimum = 0; ///< number of arguments
    int maximum = 0;
    QString name;    ///< name in the usage: "TABLE"
    QString meaning; ///< description in the help
    QString missing; ///< error text if there are too few
};

/// Adds the command's options to the parser, parses the arguments and reads the global options.
///
/// @param place   directory and language of the arguments
/// @par Errors    no key; the text describes the fault of the command line, in the language in use.
Result<GlobalOptions> parseArguments(QCommandLineParser &parser, const CommandSyntax &syntax,
                                     const QStringList &arguments, const Place &place);

/// The error for "-o -" together with an option that also prints.
///
/// @param printing  names of such options
std::optional<Error> checkStandardOutput(const QCommandLineParser &parser,
                                         const QStringList &printing);

/// An error in the command line, without a file.
Error wrongUsage(const QString &text);

/// The error for a wrong value of an option.
///
/// @param option  without dashes
/// @param wanted  description of a right value: "a number of 1 to 5"
Error wrongValue(const QString &option, const QString &wanted, const QString &value);

} // namespace vlt::batch
