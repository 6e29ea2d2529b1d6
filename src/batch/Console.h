#pragma once

#include "batch/CommandLine.h"
#include "platform/Result.h"

namespace vlt::batch {

/// Writes to standard output as it is. False when it did not arrive whole (full disk, closed pipe).
bool printOut(const QString &text);

/// Writes a line to the error output, after the program's name.
void printError(const QString &text);

/// Tells why an input is refused, with the file it is about, in the chosen language.
///
/// @param detail  a library's own reason; may be empty
/// @return        ExitStatus::Refused, for the caller to return
ExitStatus refuse(const Error &error, const QString &detail = {});

/// The error's text in the chosen language, after the file it is about.
QString explain(const Error &error, const QString &detail = {});

/// Text out of a user's file as one line that cannot steer a terminal: control characters become
/// spaces.
QString oneLine(QString text);

} // namespace vlt::batch
