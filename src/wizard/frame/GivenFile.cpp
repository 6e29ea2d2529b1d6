#include "wizard/frame/GivenFile.h"

#include "geodata/PolygonSource.h"
#include "geodata/RasterSource.h"
#include "links/LinkFileInfo.h"
#include "sites/SiteFileInfo.h"

#include <QFileInfo>
#include <QStringList>

namespace vlt::wizard {

namespace {

bool hasSuffix(const QString &path, const QStringList &suffixes)
{
    return suffixes.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

bool isBuildingSource(const QString &path)
{
    if (geodata::readRasterSummary(path))
        return true;
    const auto vector = geodata::PolygonSource::open(path);
    return vector && !vector.value()->layers().isEmpty();
}

} // namespace

FileKind kindOfFile(const QString &path)
{
    if (!QFileInfo::exists(path))
        return FileKind::Missing;
    if (hasSuffix(path, {QStringLiteral("gvw")}))
        return FileKind::Project;
    if (hasSuffix(path, {QStringLiteral("lay"), QStringLiteral("texb")}))
        return FileKind::Layer;
    const bool isNamedTable = hasSuffix(path, {QStringLiteral("csv"), QStringLiteral("xls"),
                                               QStringLiteral("xlsx"), QStringLiteral("xml")});
    if (!isNamedTable && isBuildingSource(path))
        return FileKind::BuildingSource;
    if (links::readLinkFileInfo(path, {}))
        return FileKind::LinkTable;
    // the page reports why a table cannot be read
    return isNamedTable || sites::readSiteFileInfo(path, {}) ? FileKind::SiteTable
                                                             : FileKind::Unknown;
}

} // namespace vlt::wizard
