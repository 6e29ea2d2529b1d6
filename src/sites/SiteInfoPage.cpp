#include "sites/SiteInfoPage.h"

#include "platform/TextDecoding.h"
#include "sites/PylonTypes.h"
#include "text/Templates.h"

#include <QFile>

namespace vlt::sites {

namespace {

bool isFrench(const QString &language)
{
    return language == QLatin1String("fr");
}

QString reference(const QString &column)
{
    return QLatin1Char('[') + column + QLatin1Char(']');
}

QString tableRow(const QString &head, const QStringList &columns)
{
    if (columns.isEmpty())
        return {};
    QString row = QStringLiteral("<tr><td>") + head + QStringLiteral("</td>");
    for (const QString &column : columns)
        row += QStringLiteral("<td>") + reference(column) + QStringLiteral("</td>");
    return row + QStringLiteral("</tr>");
}

QString terrainLine(const QString &head, const QString &column)
{
    return column.isEmpty()
               ? QString()
               : head + QStringLiteral(": ") + reference(column) + QStringLiteral("<br><br>");
}

} // namespace

QString fillSiteInfoPage(const QString &pageTemplate, const QString &language,
                         const SiteColumnSet &columns)
{
    const bool french = isFrench(language);
    const auto label = [french](const char *inFrench, const char *inEnglish) {
        return QString::fromLatin1(french ? inFrench : inEnglish);
    };
    std::vector<text::Replacement> fill;
    const auto fillFound = [&fill](const QString &placeholder, const QString &column) {
        if (!column.isEmpty())
            fill.emplace_back(placeholder, reference(column));
    };
    fillFound(QStringLiteral("__NAME__"), columns.name);
    fillFound(QStringLiteral("__LON__"), columns.x);
    fillFound(QStringLiteral("__LAT__"), columns.y);
    fill.emplace_back(
        QStringLiteral("__TERRAINHGHT__"),
        terrainLine(label("Hauteur du Terrain", "Terrain Height"), columns.terrainHeight));
    fill.emplace_back(QStringLiteral("__SECTORID__"),
                      tableRow(label("Secteur ID", "Sector ID"), columns.sectorIds));
    fill.emplace_back(QStringLiteral("__HEIGHT__"),
                      tableRow(label("Hauteur", "Height"), columns.heights));
    fill.emplace_back(QStringLiteral("__AZIMUTH__"),
                      tableRow(QStringLiteral("Azimuth"), columns.azimuths));
    fill.emplace_back(QStringLiteral("__TILT__"),
                      tableRow(label("Inclinaison", "Tilt"), columns.tilts));
    return text::replacePlaceholders(pageTemplate, fill);
}

Result<QString> readConfigurationFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error{QStringLiteral("MESS_MISSING_CONF_FILE"),
                     QStringLiteral("A configuration file is missing"), path};
    return platform::decodeText(file.readAll());
}

Result<QString> buildSiteInfoHtml(const QString &connection, const QString &language,
                                  const QString &installDir, const QString &projectDirectory)
{
    const QString name = isFrench(language) ? QStringLiteral("/sites_infos_fr.html")
                                            : QStringLiteral("/sites_infos_en.html");
    const Result<QString> page =
        readConfigurationFile(installDir + QLatin1Char('/') + PylonFolder + name);
    if (!page)
        return page.error();
    return fillSiteInfoPage(QString(page.value()).remove(QLatin1Char('\n')), language,
                            recogniseSiteColumns(connection, projectDirectory));
}

} // namespace vlt::sites
