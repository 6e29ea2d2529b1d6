#include "buildings/HeightFromName.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace vlt::buildings {

namespace {

constexpr double HeightOfLoneM = 1.5;

QRegularExpression pattern(const QString &text)
{
    return QRegularExpression(text, QRegularExpression::CaseInsensitiveOption |
                                        QRegularExpression::UseUnicodePropertiesOption);
}

/// The patterns, in the order in which they are tried. They end in \z because "$" also matches
/// before a line feed.
const std::array<QRegularExpression, 5> &patterns()
{
    static const std::array<QRegularExpression, 5> Patterns = {
        pattern(u"\\d+\\z|(\\d*[\\.,]\\d+)\\z|(\\d+[\\.,]\\d*)\\z"_s),
        pattern(u"(\\d+|(\\d*[\\.,]\\d+)|(\\d+[\\.,]\\d*))( )?(m|\\(m\\))\\z"_s),
        pattern(u"(m|\\(m\\))\\z"_s),
        pattern(u"\\((\\d+|(\\d*[\\.,]\\d+)|(\\d+[\\.,]\\d))( )?(m|\\(m\\))\\)"_s),
        pattern(u"(\\d+|(\\d*[\\.,]\\d+)|(\\d+[\\.,]\\d))( )?(m|\\(m\\))"_s)};
    return Patterns;
}

std::optional<double> heightIn(QString text)
{
    for (const QChar mark : u")( "_s)
        text.remove(mark);
    if (text.compare(u"m", Qt::CaseInsensitive) == 0)
        return HeightOfLoneM;
    text.replace(u',', u'.');
    text.remove(QChar(u'm'), Qt::CaseInsensitive);
    bool isNumber = false;
    const double height = text.toDouble(&isNumber);
    return isNumber ? std::optional(height) : std::nullopt;
}

} // namespace

NamedHeight heightFromName(const QString &baseName)
{
    NamedHeight named;
    for (const QRegularExpression &pattern : patterns()) {
        const QString text = pattern.match(baseName).captured();
        if (text.isEmpty())
            continue;
        if (text.contains(u'm'))
            named.inMetres = true;
        if (const std::optional<double> height = heightIn(text)) {
            named.height = *height;
            break;
        }
    }
    return named;
}

} // namespace vlt::buildings
