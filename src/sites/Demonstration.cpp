#include "sites/Demonstration.h"

#include "contract/Installation.h"
#include "contract/ParametricKeys.h"
#include "sites/PylonQuery.h"
#include "text/Numbers.h"

#include <QDir>

namespace vlt::sites {

namespace query = contract::query;
namespace parametric = contract::parametric;

QString queryItem(const char *key, const QStringList &words)
{
    return QLatin1String(key) + QLatin1Char('=') + words.join(QLatin1Char(' '));
}

QString pylonItem(const SiteRepresentation &representation, int xM, int yM)
{
    return queryItem(parametric::Pylon,
                     QStringList{QString::number(xM), QString::number(yM), QStringLiteral("0"),
                                 text::g6(contract::DefaultPylonHeightM),
                                 text::g6(representation.pylonWidthM)} +
                         sectorProperties(representation));
}

QString demonstrationUrl(const Demonstration &shown, const SiteRepresentation &representation,
                         const PylonType &type, const QString &installDir)
{
    const QString folder =
        QDir(installDir).absolutePath() + QLatin1Char('/') + QLatin1String(contract::PylonFolder);
    const QStringList items =
        QStringList{queryItem(parametric::Object, {QLatin1String(shown.object)}),
                    queryItem(query::DataFolder, {folder}),
                    queryItem(query::PylonType, {type.type})} +
        shown.pylons +
        QStringList{queryItem(query::TransmitterScale,
                              {QString::number(representation.antennaScalePercent)}),
                    queryItem(parametric::Distances,
                              {QString::number(representation.symbolicDistanceM),
                               QString::number(representation.realisticDistanceM)})} +
        shown.others;
    return QLatin1String(parametric::Start) + items.join(QLatin1Char('&')) + QLatin1Char('.') +
           QLatin1String(parametric::Extension);
}

} // namespace vlt::sites
