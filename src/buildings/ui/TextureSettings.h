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
    bool isWhole = false; ///< when read: each image has all of its values
};

/// Reads the values; images without a path are left out.
TextureSettings readTextureSettings(QSettings &settings);

/// Sets a value that differs from the stored one. After an equal one the file is not written again,
/// which takes long with thousands of images.
void change(QSettings &settings, const QString &key, const QVariant &value);

/// Writes the values that have changed; entries of a longer old list are removed.
///
/// @param stored  the images as they were written last; if the settings still have them, only these
///                are compared, because thousands of stored values take long to read
void writeTextureSettings(QSettings &settings, const TextureSettings &textures,
                          const QList<FileEntry> &stored = {});

} // namespace vlt::buildings
