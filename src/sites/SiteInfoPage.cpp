#include "sites/SiteInfoPage.h"

#include "tables/InfoPageParts.h"
#include "text/Templates.h"

namespace vlt::sites {

namespace {

QString terrainLine(const QString &head, const QString &column)
{
    return column.isEmpty() ? QString()
                            : head + QStringLiteral(": ") + tables::fieldReference(column) +
                                  QStringLiteral("<br><br>");
}

} // namespace

QString fillSiteInfoPage(const QString &pageTemplate, const QString &language,
                         const SiteColumnSet &columns)
{
    const bool french = tables::isFrench(language);
    const auto label = [french](const char *inFrench, const char *inEnglish) {
        return QString::fromLatin1(french ? inFrench : inEnglish);
    };
    std::vector<text::Replacement> fill;
    const auto fillFound = [&fill](const QString &placeholder, const QString &column) {
        if (!column.isEmpty())
            fill.emplace_back(placeholder, tables::fieldReference(column));
    };
    fillFound(QStringLiteral("__NAME__"), columns.name);
    fillFound(QStringLiteral("__LON__"), columns.x);
    fillFound(QStringLiteral("__LAT__"), columns.y);
    fill.emplace_back(
        QStringLiteral("__TERRAINHGHT__"),
        terrainLine(label("Hauteur du Terrain", "Terrain Height"), columns.terrainHeight));
    fill.emplace_back(QStringLiteral("__SECTORID__"),
                      tables::tableRow(label("Secteur ID", "Sector ID"), columns.sectorIds));
    fill.emplace_back(QStringLiteral("__HEIGHT__"),
                      tables::tableRow(label("Hauteur", "Height"), columns.heights));
    fill.emplace_back(QStringLiteral("__AZIMUTH__"),
                      tables::tableRow(QStringLiteral("Azimuth"), columns.azimuths));
    fill.emplace_back(QStringLiteral("__TILT__"),
                      tables::tableRow(label("Inclinaison", "Tilt"), columns.tilts));
    return text::replacePlaceholders(pageTemplate, fill);
}

Result<QString> buildSiteInfoHtml(const QString &connection, const QString &language,
                                  const QString &installDir, const QString &projectDirectory)
{
    return buildSiteInfoHtml(recogniseSiteColumns(connection, projectDirectory), language,
                             installDir);
}

Result<QString> buildSiteInfoHtml(const SiteColumnSet &columns, const QString &language,
                                  const QString &installDir)
{
    const Result<QString> page =
        tables::readInfoTemplate(installDir, QStringLiteral("sites_infos"), language);
    if (!page)
        return page.error();
    return fillSiteInfoPage(page.value(), language, columns);
}

} // namespace vlt::sites
