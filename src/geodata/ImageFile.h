#pragma once

#include "geodata/Subdatasets.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace vlt::geodata {

/// What an image file states of itself: nothing where the geodata library cannot read it.
struct ImageFile
{
    /// An image in a file that holds several, with a height of its own where it states one.
    struct Part
    {
        Subdataset subdataset;
        std::optional<double> height;
    };

    std::optional<double> height; ///< metadata item HEIGHT, where it is a number
    QList<Part> parts;            ///< empty for a plain image
};

/// The names of everything in a folder, listed once for the reading of many of its files: what the
/// geodata library would otherwise find out by listing the folder at every open.
class FolderNames
{
public:
    /// @param names  in bytes of the file system
    explicit FolderNames(const QList<QByteArray> &names);

    /// Whether no other name is the same up to its first dot: the file has no side files.
    bool isAlone(const QByteArray &name) const;

private:
    QHash<QByteArray, int> m_starts; ///< how many names start so
};

/// Reads many image files of one folder, with the same result as if each were opened by itself.
/// One reader for one thread.
class ImageFileReader
{
public:
    /// @param names  of the folder; it must outlive the reader
    explicit ImageFileReader(const FolderNames &names);

    /// @param path  absolute path of a file of the folder
    ImageFile read(const QString &path);

private:
    const FolderNames &m_names;
    QByteArray m_lastFormat; ///< a format that is known by its first bytes, or empty
};

} // namespace vlt::geodata
