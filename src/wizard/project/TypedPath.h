#pragma once

#include <QString>

namespace vlt::project {

/// The path for a text that was typed or pasted: without blanks and quotation marks around it, the
/// local path of a "file:" address, and the user's home directory for "~/" at the start. The name
/// of an existing file is not changed.
QString typedPath(const QString &text);

} // namespace vlt::project
