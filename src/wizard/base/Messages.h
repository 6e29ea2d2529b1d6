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

/// What an error says apart from its path: the text, or the detail where there is no text.
QString reasonOf(const Error &error);

/// Where a box names the path of an error: behind its text after a line feed, or below it in
/// smaller letters.
enum class PathPlace { BehindText, BelowText };

/// A critical box with one OK button; the error's detail stands below the text.
void critical(QWidget *parent, const Error &error, const QString &title = errorTitle(),
              PathPlace place = PathPlace::BehindText);

/// A warning with one OK button.
void warning(QWidget *parent, const Error &error, const QString &title,
             PathPlace place = PathPlace::BehindText);

/// A question box with an empty title, the buttons Yes and No and no default button; true on Yes.
/// The keyboard is on No: who presses Return without looking changes nothing.
bool confirmed(QWidget *parent, const QString &question);

} // namespace vlt::messages
