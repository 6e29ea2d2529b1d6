#include "colormaps/ColoredInfoText.h"

#include "language/VltLanguageManager.h"

namespace vlt::colormaps {

QString coloredInfoText(const QString &colorMapName, const QString &imagePath,
                        const QSize &shownSize)
{
    const QString name =
        QStringLiteral("<span style=\"font-weight:600; text-decoration:underline;\">") +
        colorMapName.toHtmlEscaped() + QStringLiteral("</span>");
    const QString size = shownSize.isEmpty() ? QString()
                                             : QStringLiteral(" width=\"%1\" height=\"%2\"")
                                                   .arg(shownSize.width())
                                                   .arg(shownSize.height());
    return QStringLiteral("<p>") + dico_label("MESS_COLORED_WITH", "Colored: %1").arg(name) +
           QStringLiteral("<br/><img src=\"") + imagePath.toHtmlEscaped() + QLatin1Char('"') +
           size + QStringLiteral("/></p>");
}

} // namespace vlt::colormaps
