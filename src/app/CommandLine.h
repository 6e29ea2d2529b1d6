#pragma once

#include <QString>
#include <QStringList>

namespace vlt::app {

/// What the wizard's command line asks for.
struct CommandLine
{
    enum class Wish { Window, Help, Version };

    Wish wish = Wish::Window;
    QString file;    ///< to open in the window; empty for none
    QString mistake; ///< why the line cannot be used, in the chosen language; else empty
};

/// Reads what the toolkit left of the command line: it takes its own options away, among them
/// -stylesheet. "--" ends the options.
///
/// @param arguments  without the program's name
CommandLine readCommandLine(const QStringList &arguments);

/// Whether the line asks for a text only: that needs no display. The toolkit's own options may
/// still be there.
bool asksForText(const QStringList &arguments);

/// What --help prints, in the chosen language.
QString helpText();

} // namespace vlt::app
