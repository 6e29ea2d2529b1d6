#pragma once

#include "batch/CommandLine.h"

#include <QCommandLineOption>

#include <functional>

namespace vlt::batch {

/// The syntax of one command's command line, with texts in the language in use.
struct CommandSyntax
{
    QString name;    ///< empty for the program without a command
    QString usage;   ///< text after the name: "TABLE -o OUT.lay"
    QString summary; ///< line in the list of commands
    QString description;
    Inputs inputs;
    QList<QCommandLineOption> options; ///< options of this command only
    QStringList repeatable;            ///< names of options that may be given several times
    QString examples;                  ///< one command line per line
    std::function<QString(const Place &)> lists; ///< end of the help; may be empty
};

/// A command of the program.
struct Command
{
    CommandSyntax (*syntax)();
    /// @param parser  after parsing the command line without an error
    ExitStatus (*run)(const QCommandLineParser &parser, const GlobalOptions &options);
};

/// All commands, in the order of the help.
const QList<Command> &commands();

} // namespace vlt::batch
