#pragma once

#include "platform/Result.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

namespace vlt::batch {

struct CommandSyntax;

/// What the program's exit tells.
enum class ExitStatus {
    Done = 0,
    Refused = 1,   ///< an input was refused; no output file was touched
    WrongUsage = 2 ///< the command line is not understood
};

/// Where the program finds its files, and in which language it speaks.
struct Place
{
    QString installDir; ///< absolute
    QString language;   ///< language code
};

/// Options that every command has.
struct GlobalOptions
{
    Place place;
    QString projectPath; ///< empty: no project
    bool json = false;
    bool quiet = false;
};

/// The command's name apart from everything else, and what has to be known before the texts of its
/// options are. The name is the first argument that is neither an option nor the value of a global
/// one; empty where there is none.
struct SplitArguments
{
    QString command;
    QStringList others; ///< the program's own name first
    QString installDir; ///< as given; empty: where the start-up settings say
    QString language;   ///< "fr" or "en"; empty: as the start-up settings say
    bool json = false;
};

SplitArguments splitCommand(const QStringList &arguments);

/// Options that every command has, with --help and --version.
QList<QCommandLineOption> globalOptions();

/// What a command is given besides options.
struct Inputs
{
    int least = 0;
    int most = 0;
    QString name;    ///< in the usage: "TABLE"
    QString meaning; ///< in the help
    QString missing; ///< error text when there are too few
};

/// Makes the parser know the command's options, parses the arguments and takes the global options.
///
/// @param place   where the program is, as the arguments have it
/// @par Errors    no key; what is wrong with the command line, in the language in use.
Result<GlobalOptions> parseArguments(QCommandLineParser &parser, const CommandSyntax &syntax,
                                     const QStringList &arguments, const Place &place);

/// "-o -" beside an option that prints, too.
///
/// @param printing  names of such options
std::optional<Error> checkStandardOutput(const QCommandLineParser &parser,
                                         const QStringList &printing);

/// An error of the command line, without a file.
Error wrongUsage(const QString &text);

/// Error text about the value of an option.
///
/// @param option  without dashes
/// @param wanted  what the value should be: "a number of 1 to 5"
Error wrongValue(const QString &option, const QString &wanted, const QString &value);

} // namespace vlt::batch
