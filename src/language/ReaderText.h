#pragma once

#include <QString>

namespace vlt::language {

/// Translates a message of the table readers or the scene readers (a problem of a row, a notice,
/// the reason why a file is refused) into the user's language. A file name before the message, as
/// in "FILE: 3 of 277 buildings are left out: ...", and the names within it are kept. Any other
/// text is returned unchanged.
QString readerText(const QString &english);

} // namespace vlt::language
