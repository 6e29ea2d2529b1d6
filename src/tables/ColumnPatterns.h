#pragma once

#include <QRegularExpression>

namespace vlt::tables {

/// A pattern that accepts whole column names only, without regard to the case of letters; a dot
/// stands for any character, letters and blanks are those of Unicode.
QRegularExpression wholeName(const QString &pattern);

} // namespace vlt::tables
