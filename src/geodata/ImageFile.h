#pragma once

#include "geodata/Subdatasets.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace vlt::geodata {

/// Height and parts that an image file declares; empty if the geodata library cannot read it.
struct ImageFile
{
    /// An image in a file that holds several, with its own height if it declares one.
    struct Part
    {
        Subdataset subdataset;
        std::optional<double> height;
    };

    std::optional<double> height; ///< metadata item HEIGHT, if it is a number
    QList<Part> parts;            ///< empty for a plain image
};

/// The names of all entries of a folder, listed once before many of its files are read. Without
/// them the geodata library would list the folder each time it opens a file.
class FolderNames
{
public:
    /// @param names  in the encoding of the file system
    explicit FolderNames(const QList<QByteArray> &names);

    /// Whether no other name is the same up to its first dot; if so, the file has no side files.
    bool isAlone(const QByteArray &name) const;

private:
    QHash<QByteArray, int> m_starts; ///< number of names by their text up to the first dot
};

/// Reads many image files of one folder, with the same result as if each were opened by itself.
/// Each thread needs a reader of its own.
class ImageFileReader
{
public:
    /// @param names  of the folder; it must outlive the reader
    explicit ImageFileReader(const FolderNames &names);

    /// @param path  absolute path of a file of the folder
    ImageFile read(const QString &path);

private:
    const FolderNames &m_names;
    QByteArray m_lastFormat; ///< the last format, if its first bytes identify it; else empty
};

} // namespace vlt::geodata
