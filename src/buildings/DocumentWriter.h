#pragma once

#include "contract/BuildingDocument.h"

#include <QString>

namespace vlt::buildings {

/// The text of a document for buildings with colours from a raster. It has no cache, no distance
/// for images, no colours of roofs and no images. Values are not escaped in either kind of
/// document; numbers have 6 significant digits.
QString writeColoredTexbDocument(const contract::BuildingDocument &document);

/// The text of the full document, for buildings with images.
QString writeTexbDocument(const contract::BuildingDocument &document);

} // namespace vlt::buildings
