#pragma once

#include <QFileInfo>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace vlt::buildings {

/// A texture image, or one of the images of a file that holds several.
struct FileEntry
{
    static constexpr int Metres = 0;       ///< `unit` of a name with metres
    static constexpr int UnstatedUnit = 1; ///< `unit` of a name with a number without unit

    FileEntry() = default;
    FileEntry(const QString &fullPath, double imageHeight, int heightUnit,
              const QString &folderName, bool isUsed, const QString &text)
        : file(fullPath)
        , shortName(folderName)
        , used(isUsed)
        , height(imageHeight)
        , unit(heightUnit)
        , description(text)
    {}
    FileEntry(const FileEntry &) = default;
    FileEntry(FileEntry &&) = default;
    FileEntry &operator=(const FileEntry &) = default;
    FileEntry &operator=(FileEntry &&) = default;
    virtual ~FileEntry() = default;

    /// Name of the file on the disk, even if `file` is the name of an image in it.
    QString fileName() const;

    QFileInfo file;      ///< has the full path, which may be the name of an image in a file
    QString shortName;   ///< folder in the list
    bool used = true;    ///< ticked by the user
    double height = 0;   ///< height or storey of the image; metres if `unit` is Metres
    int unit = Metres;   ///< saved unchanged
    QString description; ///< of an image in a file that holds several
};

/// Reads and writes the images in the wizard's shared parameters, as "FileList".
QList<FileEntry> publishedImages(const QVariantMap &parameters);
void publishImages(const QList<FileEntry> &images, QVariantMap &parameters);

} // namespace vlt::buildings

Q_DECLARE_METATYPE(QList<vlt::buildings::FileEntry>)
