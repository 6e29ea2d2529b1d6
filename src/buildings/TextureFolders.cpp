#include "buildings/TextureFolders.h"

#include "buildings/HeightFromName.h"
#include "geodata/ImageFile.h"

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <memory>
#include <thread>

namespace vlt::buildings {

namespace {

namespace fs = std::filesystem;

/// A folder to be read, and its name in the list.
struct Folder
{
    QString path;
    QString shortName;
};

/// An image file and the names of its folder.
struct Image
{
    QString path;
    QString shortName;
    std::shared_ptr<const geodata::FolderNames> beside;
};

/// Reports the progress, but not more often than a user can see.
class ProgressReporter
{
public:
    explicit ProgressReporter(const Progress &progress) : m_progress(progress) {}

    /// Reports the progress; false if the work must stop.
    bool goesOn(double share)
    {
        constexpr int PauseMs = 20;
        if (!m_goesOn || !m_progress || (m_last.isValid() && m_last.elapsed() < PauseMs))
            return m_goesOn;
        m_last.start();
        m_goesOn = m_progress(share);
        return m_goesOn;
    }

private:
    const Progress &m_progress;
    QElapsedTimer m_last;
    bool m_goesOn = true;
};

bool isBefore(const QString &a, const QString &b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order == 0 ? a < b : order < 0;
}

/// The path of a folder without links and "..", with a slash at the end; empty if the folder does
/// not exist.
QString canonical(const QString &folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    return path.isEmpty() || path.endsWith(u'/') ? path : path + u'/';
}

/// The subfolders to be read, sorted by name. `seen` has the folders read before, so that a folder
/// with several links is read only once, by its own name if possible.
QList<Folder> subfolders(const Folder &parent, QSet<QString> &seen)
{
    const QDir dir(parent.path);
    QFileInfoList found = dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::sort(found.begin(), found.end(), [](const QFileInfo &a, const QFileInfo &b) {
        return isBefore(a.fileName(), b.fileName());
    });
    std::stable_partition(found.begin(), found.end(),
                          [](const QFileInfo &folder) { return !folder.isSymLink(); });
    const QString here = canonical(parent.path);
    QList<Folder> folders;
    for (const QFileInfo &folder : std::as_const(found)) {
        const QString place = canonical(folder.filePath());
        const bool isCircle = here.startsWith(place); // true too for a folder that does not exist
        if (isCircle || seen.contains(place))
            continue;
        seen.insert(place);
        const QString name = folder.fileName();
        folders += Folder{dir.filePath(name),
                          parent.shortName.isEmpty() ? name : parent.shortName + u'/' + name};
    }
    std::sort(folders.begin(), folders.end(),
              [](const Folder &a, const Folder &b) { return isBefore(a.shortName, b.shortName); });
    return folders;
}

QList<Folder> foldersOf(DataStructure structure, const QString &templateDir)
{
    const QString own = QDir::cleanPath(templateDir);
    QSet<QString> seen;
    switch (structure) {
    case DataStructure::SiblingFolders:
        return subfolders({QDir::cleanPath(own + QStringLiteral("/..")), {}}, seen);
    case DataStructure::TwoLevels: {
        const Folder top{QDir::cleanPath(own + QStringLiteral("/../..")), {}};
        QList<Folder> folders;
        QSet<QString> seenAbove;
        for (const Folder &folder : subfolders(top, seenAbove))
            folders += subfolders(folder, seen);
        return folders;
    }
    default:
        return {Folder{own, QDir(own).dirName()}};
    }
}

/// Names of all entries of a folder, in the encoding of the file system. `files` receives the names
/// of the regular files that are not hidden.
QList<QByteArray> namesIn(const QString &folder, QList<QByteArray> &files)
{
    QList<QByteArray> names;
    std::error_code error;
    fs::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        names += QByteArray::fromStdString(name);
        std::error_code unknown;
        if (!name.starts_with('.') && entry->is_regular_file(unknown))
            files += names.constLast();
    }
    return names;
}

QList<Image> imagesIn(const Folder &folder, const QString &suffix)
{
    qInfo().noquote() << "Grabbing files from :" << folder.path;
    QList<QByteArray> files;
    const auto beside = std::make_shared<const geodata::FolderNames>(namesIn(folder.path, files));
    QStringList names;
    for (const QByteArray &file : std::as_const(files)) {
        const QString name = QFile::decodeName(file);
        if (suffix.isEmpty() || name.endsWith(u'.' + suffix, Qt::CaseInsensitive))
            names += name;
    }
    std::sort(names.begin(), names.end(), isBefore);
    const QDir dir(folder.path);
    QList<Image> images;
    for (const QString &name : std::as_const(names))
        images += Image{dir.filePath(name), folder.shortName, beside};
    return images;
}

bool isHeightInNameOnly(const QFileInfo &file)
{
    const QString suffix = file.suffix();
    return suffix.compare(u"grc", Qt::CaseInsensitive) == 0 ||
           suffix.compare(u"grd", Qt::CaseInsensitive) == 0;
}

QList<FileEntry> entriesOf(const Image &image, const geodata::ImageFile &content)
{
    const QFileInfo file(image.path);
    const NamedHeight named = heightFromName(file.completeBaseName());
    const int unit = named.inMetres ? FileEntry::Metres : FileEntry::UnstatedUnit;
    const bool isNameOnly = isHeightInNameOnly(file);
    const double height = isNameOnly ? named.height : content.height.value_or(named.height);
    if (content.parts.isEmpty())
        return {FileEntry(image.path, height, unit, image.shortName, true, {})};
    QList<FileEntry> entries;
    for (const geodata::ImageFile::Part &part : content.parts) {
        entries +=
            FileEntry(part.subdataset.name, isNameOnly ? height : part.height.value_or(height),
                      unit, image.shortName, true, part.subdataset.description);
    }
    return entries;
}

/// Reads the images on several threads. One of them is the caller's, and only that one reports the
/// progress.
class Reading
{
public:
    explicit Reading(QList<Image> images) : m_images(std::move(images)), m_read(m_images.size()) {}

    /// The images; none if the work was stopped.
    std::optional<QList<FileEntry>> run(ProgressReporter &reporter)
    {
        std::vector<std::thread> others;
        for (qsizetype i = 1; i < threadCount(); ++i)
            others.emplace_back([this] { readSome(nullptr); });
        readSome(&reporter);
        for (std::thread &other : others)
            other.join();
        if (m_isStopped)
            return std::nullopt;
        QList<FileEntry> entries;
        for (const QList<FileEntry> &read : m_read)
            entries += read;
        return entries;
    }

private:
    qsizetype threadCount() const
    {
        constexpr qsizetype AtMost = 8;
        constexpr qsizetype WorthAThread = 32;
        return std::min({AtMost, qsizetype(std::thread::hardware_concurrency()),
                         m_images.size() / WorthAThread + 1});
    }

    void readSome(ProgressReporter *reporter)
    {
        std::unique_ptr<geodata::ImageFileReader> reader;
        const geodata::FolderNames *folder = nullptr;
        while (!m_isStopped) {
            const qsizetype place = m_next++;
            if (place >= m_images.size())
                return;
            const Image &image = m_images.at(place);
            if (folder != image.beside.get()) {
                folder = image.beside.get();
                reader = std::make_unique<geodata::ImageFileReader>(*folder);
            }
            m_read[static_cast<std::size_t>(place)] = entriesOf(image, reader->read(image.path));
            const double share = static_cast<double>(place + 1);
            if (reporter && !reporter->goesOn(share / static_cast<double>(m_images.size())))
                m_isStopped = true;
        }
    }

    const QList<Image> m_images;
    std::vector<QList<FileEntry>> m_read; ///< as m_images; one thread writes each
    std::atomic<qsizetype> m_next = 0;
    std::atomic<bool> m_isStopped = false;
};

} // namespace

std::optional<QList<FileEntry>> findTextures(DataStructure structure, const QString &templateDir,
                                             const QString &suffix, const Progress &progress)
{
    ProgressReporter reporter(progress);
    QList<Image> images;
    for (const Folder &folder : foldersOf(structure, templateDir)) {
        if (!reporter.goesOn(0))
            return std::nullopt;
        images += imagesIn(folder, suffix);
    }
    return Reading(std::move(images)).run(reporter);
}

} // namespace vlt::buildings
