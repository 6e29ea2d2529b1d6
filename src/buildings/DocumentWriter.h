#pragma once

#include "contract/BuildingDocument.h"

#include <QString>

namespace vlt::buildings {

/// The text of a document of buildings that a raster colours: without a cache, a distance for
/// images, colours of roofs and images. In both documents values stand as they are, without
/// escaping; numbers have 6 significant digits.
QString writeColoredTexbDocument(const contract::BuildingDocument &document);

/// The text of the full document.
QString writeTexbDocument(const contract::BuildingDocument &document);

} // namespace vlt::buildings
