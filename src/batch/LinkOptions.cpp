#include "batch/LinkOptions.h"

#include "batch/ColorText.h"
#include "batch/NumberOptions.h"
#include "language/VltLanguageManager.h"

namespace vlt::batch {

namespace {

using links::LinkRepresentation;
using links::LinkStyle;
namespace query = contract::query;

const std::vector<NumberOption<LinkRepresentation>> &numberOptions()
{
    static const std::vector<NumberOption<LinkRepresentation>> options = {
        {QStringLiteral("link-width"),
         dico_label("MESS_OPT_LINK_WIDTH",
                    "Width of the links, in pixels for lines, else in metres"),
         &LinkRepresentation::width, query::LinkWidthPixelsOrM},
        {QStringLiteral("fresnel-zone"),
         dico_label("MESS_OPT_FRESNEL_ZONE",
                    "Number of the Fresnel zone that is drawn, 0 for none"),
         &LinkRepresentation::fresnelZone,
         {query::NoFresnelZone, query::FresnelZoneNumber.maximum}},
        {QStringLiteral("fresnel-share"),
         dico_label("MESS_OPT_FRESNEL_SHARE",
                    "Share of the zone's radius that is drawn, and share of the first zone's "
                    "radius that must be free, in per cent"),
         &LinkRepresentation::fresnelSharePercent, query::FresnelSharePercent},
        {QStringLiteral("fresnel-transparency"),
         dico_label("MESS_OPT_FRESNEL_TRANSPARENCY",
                    "Transparency of the Fresnel zone in per cent"),
         &LinkRepresentation::fresnelTransparencyPercent, query::FresnelTransparencyPercent},
        {QStringLiteral("k-factor"),
         dico_label("MESS_OPT_K_FACTOR", "Effective radius of the earth divided by its real "
                                         "radius, 1.33333 for a standard atmosphere"),
         &LinkRepresentation::kFactor, query::KFactorNumber},
    };
    return options;
}

QString styleName(LinkStyle style)
{
    return links::linkStyleText(style).toLower();
}

QString styleNames()
{
    QStringList names;
    for (std::size_t i = 0; i < contract::LinkStyleWords.size(); ++i)
        names << styleName(static_cast<LinkStyle>(i));
    return names.join(QLatin1Char('|'));
}

std::optional<LinkStyle> styleOf(const QString &text)
{
    return contract::linkStyleOf(text.toUpper().toStdString());
}

/// Reads the colour of an option, if it is given; RRGGBBAA only if alpha values are allowed.
std::optional<Error> readColor(const QCommandLineParser &parser, const QString &option,
                               bool withAlpha, QColor &color)
{
    if (!parser.isSet(option))
        return std::nullopt;
    const QString text = parser.value(option);
    const std::optional<QColor> given = colorFrom(text, withAlpha);
    if (!given)
        return wrongValue(
            option,
            withAlpha ? dico_label("MESS_USE_COLOR_ALPHA", "RRGGBB, RRGGBBAA or a name such as red")
                      : dico_label("MESS_USE_COLOR", "RRGGBB or a name such as red"),
            text);
    color = *given;
    return std::nullopt;
}

} // namespace

QList<QCommandLineOption> linkOptions()
{
    const LinkRepresentation firstRun;
    return QList<QCommandLineOption>{
               {QStringLiteral("link-style"),
                dico_label("MESS_OPT_LINK_STYLE", "Representation of the links (default %1).")
                    .arg(styleName(firstRun.style)),
                styleNames(), styleName(firstRun.style)},
               {QStringLiteral("link-color"),
                dico_label("MESS_OPT_LINK_COLOR", "Color of the links (default %1).")
                    .arg(firstRun.color.name().mid(1)),
                QStringLiteral("RRGGBB[AA]|NAME")},
               {QStringLiteral("color-by-clearance"),
                dico_label("MESS_OPT_COLOR_BY_CLEARANCE",
                           "Color each link by its clearance, if it can be computed.")},
               {QStringLiteral("fresnel-color"),
                dico_label("MESS_OPT_FRESNEL_COLOR", "Color of the Fresnel zone (default %1).")
                    .arg(firstRun.fresnelColor.name().mid(1)),
                QStringLiteral("RRGGBB|NAME")},
           } +
           numberOptionList(numberOptions());
}

Result<LinkRepresentation> readLinkOptions(const QCommandLineParser &parser)
{
    LinkRepresentation representation;
    const QString style = parser.value(QStringLiteral("link-style"));
    const auto wanted = styleOf(style);
    if (!wanted)
        return wrongValue(QStringLiteral("link-style"), styleNames(), style);
    representation.style = *wanted;
    representation.colorByClearance = parser.isSet(QStringLiteral("color-by-clearance"));
    if (const auto error =
            readColor(parser, QStringLiteral("link-color"), true, representation.color))
        return *error;
    if (const auto error =
            readColor(parser, QStringLiteral("fresnel-color"), false, representation.fresnelColor))
        return *error;
    if (const auto error = readNumberOptions(parser, numberOptions(), representation))
        return *error;
    if (representation.fresnelZone == query::NoFresnelZone) {
        representation.showFresnel = false;
        representation.fresnelZone = LinkRepresentation().fresnelZone;
    }
    return representation;
}

} // namespace vlt::batch
