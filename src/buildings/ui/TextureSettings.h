#pragma once

#include "buildings/FileEntry.h"

#include <QSettings>

namespace vlt::buildings {

/// What the textured page remembers, below "AddTexbTexturedPage".
struct TextureSettings
{
    int dataStructure = 0; ///< position in the page's list
    QString filter;
    QList<FileEntry> files;
};

/// Images without a path are left out.
TextureSettings readTextureSettings(QSettings &settings);

/// Nothing of a longer list that was remembered before stays.
void writeTextureSettings(QSettings &settings, const TextureSettings &textures);

} // namespace vlt::buildings
