#pragma once

#include "batch/CommandLine.h"
#include "platform/Result.h"

#include <QJsonObject>

namespace vlt::batch {

/// Writes a text unchanged to the standard output; false if not all of it was written (full disk,
/// closed pipe).
bool printOut(const QString &text);

/// Writes bytes in the same way.
bool printBytes(const QByteArray &bytes);

/// Writes a line to the error output, after the program's name.
void printError(const QString &text);

/// How this run of the program reports errors.
struct ErrorStyle
{
    QString command;   ///< command whose help the message names; empty for that of the program
    bool json = false; ///< errors are also objects on the standard output
};

/// To be set once, before the first error is printed.
void setErrorStyle(const ErrorStyle &style);
const ErrorStyle &errorStyle();

/// Prints an error on the error output, like refuse(); in JSON style also as an object with the
/// exit status.
void reportError(const Error &error, ExitStatus status);

/// Prints why an input is refused, with its file, in the chosen language.
///
/// @return  ExitStatus::Refused, for the caller to return
ExitStatus refuse(const Error &error);

/// The file of an error, its text in the chosen language and its detail, as one line.
QString explain(const Error &error);

/// The same for programs: "error", "file" (null for an error without a file) and "exit".
QJsonObject errorJson(const Error &error, ExitStatus status);

/// Text from a user's file as one line that cannot control the terminal: control characters become
/// spaces.
QString oneLine(QString text);

} // namespace vlt::batch
