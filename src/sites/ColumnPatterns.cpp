#include "sites/ColumnPatterns.h"

namespace vlt::sites {

QRegularExpression wholeName(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

} // namespace vlt::sites
