#pragma once

#include "batch/CommandLine.h"
#include "platform/Result.h"

#include <QJsonObject>

namespace vlt::batch {

/// Writes to standard output as it is. False when it did not arrive whole (full disk, closed pipe).
bool printOut(const QString &text);

/// Writes bytes in the same way.
bool printBytes(const QByteArray &bytes);

/// Writes a line to the error output, after the program's name.
void printError(const QString &text);

/// How this run of the program tells errors.
struct ErrorStyle
{
    QString command;   ///< whose help is named; empty: the program's
    bool json = false; ///< also as an object on the standard output
};

/// To be set once, before the first error is printed.
void setErrorStyle(const ErrorStyle &style);
const ErrorStyle &errorStyle();

/// Tells an error on the error output, as refuse() does; for programs, with its exit status.
void tellError(const Error &error, ExitStatus status);

/// Tells why an input is refused, with the file it is about, in the chosen language.
///
/// @return  ExitStatus::Refused, for the caller to return
ExitStatus refuse(const Error &error);

/// The error's text in the chosen language, after the file it is about and with its detail behind.
QString explain(const Error &error);

/// The same for programs: "error", "file" (null where it is about none) and "exit".
QJsonObject errorJson(const Error &error, ExitStatus status);

/// Text out of a user's file as one line that cannot steer a terminal: control characters become
/// spaces.
QString oneLine(QString text);

} // namespace vlt::batch
