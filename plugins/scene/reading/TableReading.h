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
/// @param table      with the absolute path of a file
/// @throws BadLayer  the driver is missing or cannot open the table
GDALDatasetUniquePtr openTable(const contract::ConnectionString &table);

/// Names of the fields of a layer, in their order.
std::vector<std::string> fieldNamesOf(OGRLayer &layer);

/// Makes a layer read the given fields only, because a scene uses few columns of a wide table.
///
/// @param fields  their indices; negative ones are ignored
void readOnlyFields(OGRLayer &layer, const std::vector<int> &fields);

/// The next feature; null after the last one. @throws BadLayer  it cannot be read
OGRFeatureUniquePtr nextFeature(OGRLayer &layer);

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

} // namespace vlt::scene
