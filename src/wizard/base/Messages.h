#pragma once

#include "platform/Result.h"

#include <QString>

class QWidget;

/// All message boxes of the wizard: modal, plain text, in the chosen language.
namespace vlt::messages {

/// Text of an error in the chosen language, the path after a line feed.
QString textOf(const Error &error);

/// Title of the boxes that report a failure: "Error".
QString errorTitle();

/// Position of an error's path in a box: after its text and a line feed, or below it in smaller
/// letters.
enum class PathPlace { BehindText, BelowText };

/// Shows a critical box with one OK button; the error's detail is below the text.
void critical(QWidget *parent, const Error &error, const QString &title = errorTitle(),
              PathPlace place = PathPlace::BehindText);

/// Shows a warning with one OK button.
void warning(QWidget *parent, const Error &error, const QString &title,
             PathPlace place = PathPlace::BehindText);

/// Shows a question box with an empty title, the buttons Yes and No and no default button; true for
/// Yes. No has the focus, so that Return without reading changes nothing.
bool confirmed(QWidget *parent, const QString &question);

} // namespace vlt::messages
