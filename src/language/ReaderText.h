#pragma once

#include <QString>

namespace vlt::language {

/// A text that a reader of tables or scenes gave (a problem of a row, a notice, the reason of a
/// refusal) in the user's language: "FILE: 3 of 277 buildings are left out: ...". The file in front
/// and the names in it stay as they are, and so does any other text.
QString readerText(const QString &english);

} // namespace vlt::language
