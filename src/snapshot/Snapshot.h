#pragma once

#include "platform/Result.h"
#include "readingaids/PictureAids.h"
#include "snapshot/ObjectView.h"
#include "snapshot/SceneGround.h"
#include "snapshot/ViewPoint.h"

#include <QImage>
#include <QSize>

#include <osg/Node>

#include <optional>

namespace vlt::snapshot {

/// Minimum and maximum of the width and height of a picture, in pixels.
inline constexpr int MinSidePx = 16;
inline constexpr int MaxSidePx = 8192;

/// A picture to draw.
struct PictureRequest
{
    QSize size; ///< width and height in pixels, both MinSidePx .. MaxSidePx
    SceneView view = SceneView::All;
    std::optional<ShownObject> object; ///< shown in place of the view; nothing: none
    bool isTransparent = false;        ///< no sky; the background has an alpha of 0
    readingaids::PictureAids aids;     ///< drawing them needs a QGuiApplication
};

struct DrawnPicture
{
    QImage image;
    osg::Vec3d eye; ///< from which it was drawn, in the frame of the scene
};

/// Draws a scene off screen, under a sky or without a background. Levels of detail are chosen by
/// their real distances from the eye.
///
/// @param scene   x east, y north, z up, metres
/// @param ground  under the scene; null: none
/// @par Errors   MESS_SNAP_NO_DISPLAY without an X server that can draw, MESS_SNAP_NO_ROOM for a
///               picture too large for its memory; those of findViewPoint() and viewOfObject().
Result<DrawnPicture> renderSnapshot(osg::Node &scene, const PictureRequest &request,
                                    SceneGround *ground);

} // namespace vlt::snapshot
