#include "tables/ColumnPatterns.h"

namespace vlt::tables {

QRegularExpression wholeName(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

} // namespace vlt::tables
