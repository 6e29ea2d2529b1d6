#include "text/RichText.h"

namespace vlt::text {

QString asRichText(const QString &plain)
{
    if (plain.isEmpty())
        return {};
    QString escaped = plain.toHtmlEscaped();
    escaped.replace(QLatin1Char('\n'), QStringLiteral("<br>"));
    return QStringLiteral("<qt>%1</qt>").arg(escaped);
}

} // namespace vlt::text
