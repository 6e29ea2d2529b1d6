#pragma once

#include "contract/ConnectionString.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <optional>
#include <string>
#include <vector>

namespace vlt::scene {

/// Opens a table with the table driver.
///
/// @param table  with the absolute path of a file
/// @throws BadLayer  the driver is not there, or cannot open it
GDALDatasetUniquePtr openTable(const contract::ConnectionString &table);

/// Names of the fields of a layer, in their order.
std::vector<std::string> fieldNamesOf(OGRLayer &layer);

/// Makes a layer leave out all other fields: most columns of a wide table are of no use to a scene.
///
/// @param fields  by their index; negative ones are no fields
void readOnlyFields(OGRLayer &layer, const std::vector<int> &fields);

/// The next feature, null behind the last. @throws BadLayer  it cannot be read
OGRFeatureUniquePtr nextFeature(OGRLayer &layer);

/// The place of a feature, x before y, in the layer's system; nothing where it has none.
std::optional<osg::Vec2d> placeOf(const OGRFeature &feature);

/// The number in a field, which may be a text with a decimal comma; nothing where there is none, or
/// none within `least` and `most`.
std::optional<double> numberAt(const OGRFeature &feature, int field, double least, double most);

/// The text in a field, UTF-8; empty where there is none.
std::string textAt(const OGRFeature &feature, int field);

/// Moves places of a layer's system into the frame around them; x is NaN where a place is none of
/// the earth's.
SceneFrame moveToFrame(OGRLayer &layer, std::vector<osg::Vec2d> &places);

/// The same for places of a system, x before y; null where it is not known.
SceneFrame moveToFrame(const OGRSpatialReference *srs, std::vector<osg::Vec2d> &places);

} // namespace vlt::scene
