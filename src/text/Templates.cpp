#include "text/Templates.h"

namespace vlt::text {

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool hasSlot(QStringView text)
{
    for (qsizetype at = text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', at + 1)) {
        QStringView rest = text.mid(at + 1);
        if (rest.startsWith(u'L'))
            rest = rest.mid(1);
        if (!rest.isEmpty() && isAsciiDigit(rest.front()))
            return true;
    }
    return false;
}

} // namespace

QString fillSlots(const QString &pattern, const QStringList &values)
{
    QString text = pattern;
    for (const QString &value : values) {
        if (!hasSlot(text)) // QString::arg would warn on stderr
            break;
        text = text.arg(value);
    }
    return text;
}

QString replacePlaceholders(QString text, const std::vector<Replacement> &inOrder)
{
    for (const auto &[placeholder, value] : inOrder) {
        if (!placeholder.isEmpty())
            text.replace(placeholder, value, Qt::CaseSensitive);
    }
    return text;
}

} // namespace vlt::text
