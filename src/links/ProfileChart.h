#pragma once

#include "geodata/LinkProfile.h"

#include <QColor>
#include <QFont>
#include <QPainter>

namespace vlt::links {

/// Font and colors of a profile; all lengths of the drawing follow the font.
struct ProfileStyle
{
    QFont font;
    QColor ink = QColor(0x20, 0x24, 0x28);
    QColor paper = Qt::white;
    bool hasHeading = true; ///< title and figures
};

/// The name of a link: that of the table, else the sites of its ends, else its row.
QString linkTitle(const geodata::LinkReport &link);

/// The figures of a profile in one line: length, frequency, class of clearance and worst point, or
/// what is missing.
QString profileFigures(const geodata::LinkProfile &profile);

/// Draws the path of a link: the ground raised by the curvature of the earth, the antennas, the
/// ray, the first Fresnel zone with the part that must be clear, and the worst point, between axes
/// in km and metres above sea level. Texts are in the chosen language, its
/// numbers.
///
/// @return the area between the axes, from end A to end B
QRectF drawProfile(QPainter &painter, const QRectF &area, const geodata::LinkProfile &profile,
                   const ProfileStyle &style);

} // namespace vlt::links
