#pragma once

#include "buildings/BuildingLayer.h"
#include "buildings/FileEntry.h"

namespace vlt::buildings {

/// What a layer of buildings with images says of itself, as rich text: where on the buildings the
/// images are, how many there are, the heights that they are for.
///
/// @param images  those that are used count
QString texturedInfoText(contract::TextureMode mode, const QList<FileEntry> &images);

} // namespace vlt::buildings
