#include "batch/ColorText.h"

#include <QRegularExpression>

namespace vlt::batch {

std::optional<QColor> colorFrom(const QString &text, bool withAlpha)
{
    static const QRegularExpression hex(
        QStringLiteral("\\A#?([0-9a-fA-F]{6})([0-9a-fA-F]{2})?\\z"));
    const QRegularExpressionMatch match = hex.match(text);
    if (match.hasMatch() && (withAlpha || !match.hasCaptured(2))) {
        QColor color(QLatin1Char('#') + match.captured(1));
        if (match.hasCaptured(2))
            color.setAlpha(match.captured(2).toInt(nullptr, 16));
        return color;
    }
    if (!QColor::colorNames().contains(text, Qt::CaseInsensitive))
        return std::nullopt;
    const QColor named(text);
    return withAlpha || named.alpha() == 255 ? std::optional(named) : std::nullopt;
}

} // namespace vlt::batch
