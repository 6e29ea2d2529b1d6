#pragma once

#include <QString>
#include <QStringList>

namespace vlt::app {

/// The contents of the wizard's command line.
struct CommandLine
{
    enum class Action { Window, Help, Version };

    Action action = Action::Window;
    QString file;  ///< to open in the window; empty for none
    QString error; ///< reason why the line is refused, in the chosen language; empty if it is not
};

/// Reads the arguments that the toolkit does not use itself; it removes its own options, for
/// example -stylesheet. "--" ends the options.
///
/// @param arguments  without the program's name
CommandLine readCommandLine(const QStringList &arguments);

/// Whether the command line only requests a text (help or version), which needs no display. The
/// arguments may still include the toolkit's options.
bool asksForText(const QStringList &arguments);

/// The text for --help, in the chosen language.
QString helpText();

} // namespace vlt::app
