#pragma once

#include "picking/SceneObjects.h"
#include "snapshot/ViewPoint.h"

#include <QString>

#include <optional>

namespace vlt::snapshot {

/// A site or link of a layer that fills a picture.
struct ShownObject
{
    picking::Kind kind = picking::Kind::Site;
    QString id; ///< its name, or "#" and the row of the table where it begins

    /// The object of a text "site:ID" or "link:ID"; nothing for another text.
    static std::optional<ShownObject> from(const QString &text);
};

/// Determines the eye for a picture of one site, from its foot to its top, or of one link, from the
/// side, with both ends and its Fresnel zone.
///
/// @param aspect  width of the picture / its height
/// @par Errors    MESS_SNAP_NO_SITE or MESS_SNAP_NO_LINK if the scene has no such object, with
///                similar names as detail.
Result<ViewPoint> viewOfObject(const osg::Node &scene, const ShownObject &object, double aspect);

} // namespace vlt::snapshot
