#pragma once

#include "platform/Result.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace vlt::batch {

/// What the program's exit tells.
enum class ExitStatus {
    Done = 0,
    Refused = 1,   ///< an input was refused; no output file was touched
    WrongUsage = 2 ///< the command line is not understood
};

/// Options that every command has.
struct GlobalOptions
{
    QString installDir;  ///< empty: where the start-up settings say
    QString projectPath; ///< empty: no project
    QString language;    ///< "fr" or "en"; empty: as the start-up settings say
    bool json = false;
    bool quiet = false;
};

/// The command's name apart from everything else. The name is the first argument that is neither an
/// option nor the value of a global one; empty where there is none.
struct SplitArguments
{
    QString command;
    QStringList others; ///< the program's own name first
};

SplitArguments splitCommand(const QStringList &arguments);

/// Makes the parser know the global options, --help and --version.
void addGlobalOptions(QCommandLineParser &parser);

/// What a command is given besides options.
struct Inputs
{
    int least = 0;
    int most = 0;
    QString kind; ///< what they are called in messages: "table"
};

/// Parses the arguments and takes the global options.
///
/// @par Errors    no key; what is wrong with the command line.
Result<GlobalOptions> parseArguments(QCommandLineParser &parser, const QStringList &arguments,
                                     const Inputs &inputs);

} // namespace vlt::batch
