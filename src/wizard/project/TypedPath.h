#pragma once

#include <QString>

namespace vlt::project {

/// The path that somebody means who typed or pasted a text: without blanks and quotation marks
/// around it, the local path of a "file:" address, and the user's home for a "~/" at the start. A
/// text that names a file as it stands stays as it is.
QString typedPath(const QString &text);

} // namespace vlt::project
