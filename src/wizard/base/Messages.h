#pragma once

#include "platform/Result.h"

#include <QString>

class QWidget;

/// The one gate to message boxes: modal, plain text, in the chosen language.
namespace vlt::messages {

/// Text of an error in the chosen language, the path after a line feed.
QString textOf(const Error &error);

/// Title of the boxes that tell of a failure: "Error".
QString errorTitle();

/// A critical box with one OK button; the error's detail stands below the text.
void critical(QWidget *parent, const Error &error, const QString &title = errorTitle());

/// A warning with one OK button.
void warning(QWidget *parent, const Error &error, const QString &title);

/// The same error with its path in the detail, above the reason, instead of behind the text.
Error withPathBelow(Error error);

/// A question box with an empty title, the buttons Yes and No and no default button; true on Yes.
/// The keyboard is on No: who presses Return without looking changes nothing.
bool confirmed(QWidget *parent, const QString &question);

} // namespace vlt::messages
