#pragma once

#include "contract/ConnectionString.h"
#include "localfiles/FeatureReading.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <optional>
#include <string>
#include <vector>

namespace vlt::scene {

/// Opens a table with the table driver.
///
/// @param table      with the absolute path of a file
/// @throws BadLayer  the driver is missing or cannot open the table
GDALDatasetUniquePtr openTable(const contract::ConnectionString &table);

using localfiles::fieldNamesOf;
using localfiles::nextFeature;
using localfiles::readOnlyFields;

/// The position of a feature, x before y, in the layer's system; nothing if it has none.
std::optional<osg::Vec2d> placeOf(const OGRFeature &feature);

/// The number in a field, which may be a text with a decimal comma. Nothing if there is no number,
/// and for a number outside `least` .. `most`.
std::optional<double> numberAt(const OGRFeature &feature, int field, double least, double most);

/// The same with an optional unit: metres, feet, which become metres, or degrees.
std::optional<double> quantityAt(const OGRFeature &feature, int field, double least, double most);

/// Whether a field has a value: neither an empty text nor one that stands for no value, such as
/// N/A.
bool hasValue(const OGRFeature &feature, int field);

/// The text in a field, in UTF-8; empty if there is none.
std::string textAt(const OGRFeature &feature, int field);

/// Transforms positions from a layer's system to a frame around them. The x of a position that is
/// not on the earth becomes NaN.
SceneFrame moveToFrame(OGRLayer &layer, std::vector<osg::Vec2d> &positions);

/// The same for positions in a system, x before y; null: unknown.
SceneFrame moveToFrame(const OGRSpatialReference *srs, std::vector<osg::Vec2d> &positions);

/// Directions of true north at positions in a layer's frame, in degrees clockwise from the y axis.
std::vector<double> northDirectionsDeg(OGRLayer &layer, const SceneFrame &frame,
                                       const std::vector<osg::Vec2d> &positions);

/// The frame of a scene from a frame for the system `srs`.
SceneFrame sceneFrame(std::shared_ptr<const localframe::LocalFrame> local,
                      const OGRSpatialReference *srs);

} // namespace vlt::scene
