#include "tables/InfoPageParts.h"

#include "contract/Installation.h"
#include "platform/ConfigurationFile.h"
#include "platform/Paths.h"

#include <algorithm>

namespace vlt::tables {

bool isFrench(const QString &language)
{
    return language == QLatin1String("fr");
}

QString fieldReference(const QString &column)
{
    return QLatin1Char('[') + column + QLatin1Char(']');
}

QString tableRow(const QString &head, const QStringList &columns)
{
    const auto isMissing = [](const QString &column) { return column.isEmpty(); };
    if (std::all_of(columns.begin(), columns.end(), isMissing))
        return {};
    QString row = QStringLiteral("<tr><td>") + head + QStringLiteral("</td>");
    for (const QString &column : columns)
        row += QStringLiteral("<td>") + (isMissing(column) ? QString() : fieldReference(column)) +
               QStringLiteral("</td>");
    return row + QStringLiteral("</tr>");
}

Result<QString> readInfoTemplate(const QString &installDir, const QString &name,
                                 const QString &language)
{
    const QString suffix =
        isFrench(language) ? QStringLiteral("_fr.html") : QStringLiteral("_en.html");
    const Result<QString> page = platform::readConfigurationFile(
        platform::installedFile(installDir, contract::PylonFolder, name + suffix));
    return page ? Result<QString>(QString(page.value()).remove(QLatin1Char('\n'))) : page;
}

} // namespace vlt::tables
