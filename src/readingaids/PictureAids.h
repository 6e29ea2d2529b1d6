#pragma once

#include "readingaids/Legend.h"
#include "readingaids/ViewScale.h"

#include <QImage>
#include <QString>

namespace vlt::readingaids {

/// What is drawn over a picture.
struct PictureAids
{
    QString title;          ///< empty: none
    bool withNorth = false; ///< arrow and scale bar
    Legend legend = {};     ///< empty: none

    bool isEmpty() const { return title.isEmpty() && !withNorth && legend.isEmpty(); }
};

/// Draws the aids at the edges of a picture, in sizes that follow its size. It needs a
/// QGuiApplication, because there are no fonts without one.
///
/// @param northDeg  true north at the target, in degrees clockwise from the y axis
void drawAids(QImage &picture, const PictureAids &aids, const ViewCamera &camera, double northDeg);

} // namespace vlt::readingaids
