#include "links/LinkLayer.h"

#include "contract/ParametricKeys.h"
#include "language/VltLanguageManager.h"
#include "links/ClearanceText.h"
#include "links/LinkInfoPage.h"
#include "sites/Demonstration.h"
#include "text/Numbers.h"

#include <array>

namespace vlt::links {

namespace {

namespace parametric = contract::parametric;

/// Position of a pylon of the demonstration, metres.
struct DemoPylon
{
    int x;
    int y;
    double azimuthDeg; ///< direction of the next pylon
};

// The distance between two pylons is 800 m (640 m east, 480 m north or south), which is more than
// the common radius of sectors.
constexpr std::array<DemoPylon, 3> DemoPylons = {
    {{0, 0, 53.1301}, {640, 480, 126.87}, {1280, 0, 0}}};
/// Height of both antennas of each link.
constexpr std::array<double, 2> DemoHeightsM = {contract::DefaultAntennaHeightM, 20};
/// Over this short distance the Fresnel zone at microwave frequencies is as thin as the line. At
/// this frequency the first zone has a radius of 24 m.
constexpr int DemoFrequencyMHz = 100;

sites::PylonQuery queryOf(const LinkLayerInput &input)
{
    return {contract::TableKind::Links, input.sourceSrs,   input.targetSrs, input.file.filePath,
            linkQueryPart(input.links), input.file.reading};
}

QString dish(double heightM, double azimuthDeg, const QString &color)
{
    return sites::queryItem(
        parametric::Dish, {text::g6(heightM), text::g6(azimuthDeg), QStringLiteral("0 0"), color});
}

QStringList demoPylons(const sites::SiteRepresentation &representation,
                       const sites::SectorColorSet &colors)
{
    QStringList items;
    int dishes = 0;
    const auto nextColor = [&] {
        return sites::colorText(colors, dishes++, representation.transparencyPercent);
    };
    for (std::size_t i = 0; i < DemoPylons.size(); ++i) {
        items << sites::pylonItem(representation, DemoPylons[i].x, DemoPylons[i].y);
        if (i > 0)
            items << dish(DemoHeightsM[i - 1], DemoPylons[i - 1].azimuthDeg + 180, nextColor());
        if (i < DemoHeightsM.size())
            items << dish(DemoHeightsM[i], DemoPylons[i].azimuthDeg, nextColor());
    }
    return items;
}

/// The links of the demonstration. If the clearance gives the colour, the first link has the colour
/// of a clear path and the second one that of an obstructed path.
QStringList demoLinks(const LinkRepresentation &links)
{
    constexpr std::array<linkpath::ClearanceStatus, 2> Statuses = {
        linkpath::ClearanceStatus::Clear, linkpath::ClearanceStatus::Obstructed};
    QStringList items;
    for (std::size_t i = 0; i < DemoHeightsM.size(); ++i) {
        const QString heightM = text::g6(DemoHeightsM[i]);
        QStringList words;
        for (const DemoPylon &end : {DemoPylons[i], DemoPylons[i + 1]})
            words << QString::number(end.x) << QString::number(end.y) << heightM;
        words << QString::number(DemoFrequencyMHz);
        if (links.colorByClearance) {
            QColor color = colorOfClearance(Statuses[i]);
            color.setAlpha(links.color.alpha());
            words << sites::colorText(color, 0);
        }
        items << sites::queryItem(parametric::Link, words);
    }
    return items;
}

} // namespace

QString linkQuery(const LinkLayerInput &input)
{
    return sites::buildPylonQuery(queryOf(input), input.pylons, input.catalogues, input.project);
}

QString placingConnection(const LinkLayerInput &input)
{
    return sites::placingConnection(queryOf(input));
}

Result<tables::TableLayer> makeLinkLayer(const LinkLayerInput &input)
{
    if (const auto missing = sites::missingChoice(input.pylons, input.catalogues, input.installDir))
        return *missing;
    const QString query = linkQuery(input);
    return tables::fillLayer(
        input.installDir, QStringLiteral("template_links.lay"),
        {{QStringLiteral("__TITLE__"), dico_label("MESS_LINKS", "Links")},
         {QStringLiteral("__LINK_URL__"), query},
         {QStringLiteral("__LAYER__"), input.file.layerName},
         {QStringLiteral("__LINK_FIELD__"), input.file.linkNameField},
         {QStringLiteral("__END_LAYER__"), input.file.endLayerName},
         {QStringLiteral("__SITE_FIELD__"), input.file.nameField}},
        buildLinkInfoHtml(input.file.columns, input.language, input.installDir));
}

QString buildPreviewLinkUrl(const sites::SiteRepresentation &pylons,
                            const LinkRepresentation &links,
                            const sites::SiteCatalogues &catalogues, const QString &installDir)
{
    const sites::PylonType *type = sites::chosenPylonType(pylons, catalogues);
    const sites::SectorColorSet *colors = sites::chosenColorSet(pylons, catalogues);
    if (!type || !colors)
        return {};

    return sites::demonstrationUrl(
        {parametric::ObjectLink, demoPylons(pylons, *colors),
         demoLinks(links) + linkOptionTexts(links, ClearanceWord::Never)},
        pylons, *type, installDir);
}

} // namespace vlt::links
