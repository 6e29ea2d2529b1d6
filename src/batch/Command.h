#pragma once

#include "batch/CommandLine.h"

#include <QCommandLineOption>

#include <functional>

namespace vlt::batch {

/// What the command line of one command looks like; its texts are those of the language in use.
struct CommandSyntax
{
    QString name;    ///< empty: the program without a command
    QString usage;   ///< what follows the name: "TABLE -o OUT.lay"
    QString summary; ///< a line in the list of commands
    QString description;
    Inputs inputs;
    QList<QCommandLineOption> options;           ///< its own, without those of every command
    QStringList repeatable;                      ///< those of them that may be given several times
    QString examples;                            ///< a command line in each line
    std::function<QString(const Place &)> lists; ///< what the help ends with; may be empty
};

/// A command of the program.
struct Command
{
    CommandSyntax (*syntax)();
    /// @param parser  has parsed its command line without an error
    ExitStatus (*run)(const QCommandLineParser &parser, const GlobalOptions &options);
};

/// All commands, in the order of the help.
const QList<Command> &commands();

} // namespace vlt::batch
