#include "links/LinkRepresentation.h"

#include "sites/SectorColorSets.h"
#include "text/Numbers.h"

namespace vlt::links {

QString linkStyleText(LinkStyle style)
{
    switch (style) {
    case LinkStyle::Line:
        return QStringLiteral("LINE");
    case LinkStyle::Billboard:
        return QStringLiteral("BILLBOARD");
    case LinkStyle::Tube:
        break;
    }
    return QStringLiteral("TUBE");
}

QStringList linkParameters(const LinkRepresentation &representation)
{
    const int zone = representation.showFresnel ? representation.fresnelZone : 0;
    return {
        QStringLiteral("link_style=") + linkStyleText(representation.style),
        QStringLiteral("link_width=") + text::g6(representation.width),
        QStringLiteral("link_color=") + sites::colorText(representation.color, 0),
        QStringLiteral("fresnel_zone=") + QString::number(zone),
        QStringLiteral("fresnel_share=") + QString::number(representation.fresnelShare),
        QStringLiteral("fresnel_color=") +
            sites::colorText(representation.fresnelColor, representation.fresnelTransparency),
        QStringLiteral("k_factor=") + text::g6(representation.kFactor),
    };
}

QString linkQueryPart(const LinkRepresentation &representation)
{
    QStringList parameters = linkParameters(representation);
    if (representation.colorByClearance)
        parameters[LinkColorParameter] += QStringLiteral(" clearance");
    return parameters.join(QLatin1Char(','));
}

} // namespace vlt::links
