#pragma once

#include "buildings/BuildingLayer.h"
#include "buildings/FileEntry.h"

namespace vlt::buildings {

/// Description of a layer of buildings with images, as rich text: the part of the buildings that
/// has images, the number of images, their heights.
///
/// @param images  only those in use are counted
QString texturedInfoText(contract::TextureMode mode, const QList<FileEntry> &images);

} // namespace vlt::buildings
