#pragma once

#include "geodata/LayerInfo.h"

#include <gdal_priv.h>

namespace vlt::geodata {

/// The roles of the columns in the metadata of a layer or a dataset.
QList<ColumnRole> rolesIn(GDALMajorObject &object);

/// The shape of the table in that metadata, in English; may be empty.
QString shapeIn(GDALMajorObject &object);

} // namespace vlt::geodata
