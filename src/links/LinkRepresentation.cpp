#include "links/LinkRepresentation.h"

#include "sites/SectorColorSets.h"
#include "text/Numbers.h"

namespace vlt::links {

namespace query = contract::query;

QString linkStyleText(LinkStyle style)
{
    const std::string_view word = contract::linkStyleWord(style);
    return QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size()));
}

QStringList linkOptionTexts(const LinkRepresentation &representation, ClearanceWord clearance)
{
    const auto option = [](const char *key, const QString &value) {
        return QLatin1String(key) + QLatin1Char('=') + value;
    };
    QString color = sites::colorText(representation.color, 0);
    if (representation.colorByClearance && clearance == ClearanceWord::WhereChosen)
        color += QLatin1Char(' ') + QLatin1String(query::ClearanceWord);
    const int zone = representation.showFresnel ? representation.fresnelZone : query::NoFresnelZone;
    return {
        option(query::LinkStyle, linkStyleText(representation.style)),
        option(query::LinkWidth, text::g6(representation.width)),
        option(query::LinkColor, color),
        option(query::FresnelZone, QString::number(zone)),
        option(query::FresnelShare, QString::number(representation.fresnelSharePercent)),
        option(query::FresnelColor, sites::colorText(representation.fresnelColor,
                                                     representation.fresnelTransparencyPercent)),
        option(query::KFactor, text::g6(representation.kFactor)),
    };
}

QString linkQueryPart(const LinkRepresentation &representation)
{
    return linkOptionTexts(representation, ClearanceWord::WhereChosen).join(QLatin1Char(','));
}

} // namespace vlt::links
