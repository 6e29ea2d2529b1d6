#include "buildings/TexturedInfoText.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <set>

namespace vlt::buildings {

namespace {

/// Maximum number of heights that are listed; of more heights only the first and the last are.
constexpr int MaxHeights = 12;

QString whereOf(contract::TextureMode mode)
{
    switch (mode) {
    case contract::TextureMode::Walls:
        return dico_label("MESS_TEX_WALLS", "Walls");
    case contract::TextureMode::Storeys:
        return dico_label("MESS_TEX_STOREYS", "Storeys");
    case contract::TextureMode::Roofs:
        break;
    }
    return dico_label("MESS_TEX_ROOFS", "Roofs");
}

QString heightsText(const std::set<double> &heights)
{
    QStringList texts;
    for (const double height : heights)
        texts << language::roundNumber(height);
    if (texts.size() > MaxHeights)
        texts = {texts.first() + QStringLiteral(" \u2013 ") + texts.last()};
    return texts.join(QStringLiteral(" \u00b7 ")) + QStringLiteral(" m");
}

} // namespace

QString texturedInfoText(contract::TextureMode mode, const QList<FileEntry> &images)
{
    int count = 0;
    std::set<double> heights; // several images may have the same height
    for (const FileEntry &image : images) {
        if (!image.used)
            continue;
        ++count;
        heights.insert(image.height);
    }
    QStringList lines{
        dico_label("MESS_TEXB_IMAGES", "Images: %1").arg(language::wholeNumber(count))};
    if (count > 0) {
        const QString where =
            QStringLiteral("<span style=\"font-weight:600; text-decoration:underline;\">") +
            whereOf(mode) + QStringLiteral("</span>");
        lines.prepend(dico_label("MESS_TEXB_TEXTURED_ON", "Textured: %1").arg(where));
        lines << dico_label("MESS_TEXB_HEIGHTS", "Heights above the ground: %1")
                     .arg(heightsText(heights));
    }
    return QStringLiteral("<p>") + lines.join(QStringLiteral("<br/>")) + QStringLiteral("</p>");
}

} // namespace vlt::buildings
