#pragma once

#include "buildings/FileEntry.h"

#include <QSettings>

namespace vlt::buildings {

/// The remembered values of the textured page, below "AddTexbTexturedPage".
struct TextureSettings
{
    int dataStructure = 0; ///< position in the page's list
    QString filter;
    QList<FileEntry> files;
};

/// Reads the values; images without a path are left out.
TextureSettings readTextureSettings(QSettings &settings);

/// Sets a value that differs from the stored one. After an equal one the file is not written again,
/// which takes long with thousands of images.
void change(QSettings &settings, const QString &key, const QVariant &value);

/// Writes the values that have changed; entries of a longer old list are removed.
void writeTextureSettings(QSettings &settings, const TextureSettings &textures);

} // namespace vlt::buildings
