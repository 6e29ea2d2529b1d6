#include "buildings/TexturedInfoText.h"

#include "language/VltLanguageManager.h"
#include "text/Numbers.h"

#include <set>

namespace vlt::buildings {

namespace {

/// Longer lists of heights tell the first and the last.
constexpr int MostHeights = 12;

QString whereOf(TexbSubtype subtype)
{
    switch (subtype) {
    case TexbSubtype::Walls:
        return dico_label("MESS_TEX_WALLS", "Walls");
    case TexbSubtype::Storeys:
        return dico_label("MESS_TEX_STOREYS", "Storeys");
    case TexbSubtype::Colored:
    case TexbSubtype::Roofs:
        break;
    }
    return dico_label("MESS_TEX_ROOFS", "Roofs");
}

QString heightsText(const std::set<double> &heights)
{
    QStringList texts;
    for (const double height : heights)
        texts << text::g6(height);
    if (texts.size() > MostHeights)
        texts = {texts.first() + QStringLiteral(" \u2013 ") + texts.last()};
    return texts.join(QStringLiteral(" \u00b7 ")) + QStringLiteral(" m");
}

} // namespace

QString texturedInfoText(TexbSubtype subtype, const QList<FileEntry> &images)
{
    int count = 0;
    std::set<double> heights; // several images may be for one height
    for (const FileEntry &image : images) {
        if (!image.used)
            continue;
        ++count;
        heights.insert(image.height);
    }
    const QString where =
        QStringLiteral("<span style=\"font-weight:600; text-decoration:underline;\">") +
        whereOf(subtype) + QStringLiteral("</span>");
    QString text =
        QStringLiteral("<p>") + dico_label("MESS_TEXB_TEXTURED_ON", "Textured: %1").arg(where) +
        QStringLiteral("<br/>") + dico_label("MESS_TEXB_IMAGES", "Images: %1").arg(count);
    if (!heights.empty())
        text += QStringLiteral("<br/>") +
                dico_label("MESS_TEXB_HEIGHTS", "Heights above the ground: %1")
                    .arg(heightsText(heights));
    return text + QStringLiteral("</p>");
}

} // namespace vlt::buildings
