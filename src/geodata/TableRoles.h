#pragma once

#include "geodata/LayerInfo.h"

#include <gdal_priv.h>

namespace vlt::geodata {

/// The roles of the columns in the metadata of a layer or a dataset.
QList<ColumnRole> rolesIn(GDALMajorObject &object);

/// The table that completes that of the metadata, with the roles of its columns.
SecondColumns secondIn(GDALMajorObject &object);

/// The shape of the table in that metadata, in English; may be empty.
QString shapeIn(GDALMajorObject &object);

} // namespace vlt::geodata
