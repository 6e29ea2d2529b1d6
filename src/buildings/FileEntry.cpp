#include "buildings/FileEntry.h"

namespace vlt::buildings {

namespace {

const QString FileListKey = QStringLiteral("FileList");

} // namespace

QString FileEntry::fileName() const
{
    const QString path = file.filePath();
    if (path.isEmpty() || path.startsWith(u'/'))
        return file.fileName();
    // FORMAT:"/folder/file.nc":variable, FORMAT:2:/folder/file.tif, FORMAT:/folder/file.gpkg:table
    const qsizetype quote = path.indexOf(QStringLiteral(":\"")) + 1;
    if (quote > 0 && quote < path.indexOf(u'/')) {
        qsizetype end = path.indexOf(QStringLiteral("\":"), quote + 1);
        if (end < 0)
            end = path.indexOf(u'"', quote + 1);
        const QString quoted = path.mid(quote + 1, end - quote - 1);
        return quoted.mid(quoted.lastIndexOf(u'/') + 1);
    }
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype suffix = name.indexOf(u'.');
    const qsizetype part = suffix < 0 ? -1 : name.indexOf(u':', suffix);
    return name.left(part);
}

QList<FileEntry> publishedImages(const QVariantMap &parameters)
{
    return parameters.value(FileListKey).value<QList<FileEntry>>();
}

void publishImages(const QList<FileEntry> &images, QVariantMap &parameters)
{
    parameters.insert(FileListKey, QVariant::fromValue(images));
}

} // namespace vlt::buildings
