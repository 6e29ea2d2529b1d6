#include "batch/SiteOptions.h"

#include "batch/NumberOptions.h"

namespace vlt::batch {

namespace {

using sites::SiteRepresentation;

const std::vector<NumberOption<SiteRepresentation>> &numberOptions()
{
    static const std::vector<NumberOption<SiteRepresentation>> options = {
        {QStringLiteral("sector-height"), QStringLiteral("Sector height in metres"),
         &SiteRepresentation::sectorHeight, sites::SectorHeightLimits},
        {QStringLiteral("sector-radius"), QStringLiteral("Sector radius in metres"),
         &SiteRepresentation::sectorRadius, sites::SectorRadiusLimits},
        {QStringLiteral("sector-spacing"),
         QStringLiteral("Vertical spacing between sectors in metres"),
         &SiteRepresentation::sectorSpacing, sites::SectorSpacingLimits},
        {QStringLiteral("transparency"), QStringLiteral("Transparency of the sectors in per cent"),
         &SiteRepresentation::transparency, sites::TransparencyLimits},
        {QStringLiteral("symbolic-distance"),
         QStringLiteral("Apparition distance of the symbolic representation in metres"),
         &SiteRepresentation::symbolicDistance, sites::DistanceLimits},
        {QStringLiteral("pylon-width"), QStringLiteral("Width of the pylons in metres"),
         &SiteRepresentation::pylonWidth, sites::PylonWidthLimits},
        {QStringLiteral("antenna-size"), QStringLiteral("Antennas size in per cent"),
         &SiteRepresentation::antennaSize, sites::AntennaSizeLimits},
        {QStringLiteral("realistic-distance"),
         QStringLiteral("Apparition distance of the precise representation in metres"),
         &SiteRepresentation::realisticDistance, sites::DistanceLimits},
    };
    return options;
}

/// Index of the entry that is called `wanted`, else of the entry of that number; -1 for none.
template<typename T>
int find(const QList<T> &entries, QString T::*called, const QString &wanted)
{
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).*called == wanted)
            return i;
    }
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    return isNumber && number >= 1 && number <= entries.size() ? number - 1 : -1;
}

template<typename T>
Error notInCatalogue(const QString &option, const QString &value, const QList<T> &entries,
                     QString T::*called)
{
    QStringList names;
    for (int i = 0; i < entries.size(); ++i)
        names << QStringLiteral("%1 = ").arg(i + 1) + entries.at(i).*called;
    return Error{QString(),
                 QStringLiteral("--%1: no \"").arg(option) + value + QStringLiteral("\" (") +
                     names.join(QStringLiteral("; ")) + QLatin1Char(')'),
                 {}};
}

} // namespace

void addSiteOptions(QCommandLineParser &parser)
{
    addNumberOptions(parser, numberOptions());
    parser.addOptions({
        {QStringLiteral("sector-colors"),
         QStringLiteral("Sector colors: a set's number in the catalogue, from 1, or its "
                        "description (default 1)."),
         QStringLiteral("N|DESCRIPTION"), QStringLiteral("1")},
        {QStringLiteral("pylon-type"),
         QStringLiteral("Type of pylons, or its number in the catalogue, from 1 (default 1)."),
         QStringLiteral("TYPE|N"), QStringLiteral("1")},
    });
}

Result<sites::SiteRepresentation> readSiteNumbers(const QCommandLineParser &parser)
{
    SiteRepresentation representation;
    if (const auto error = readNumberOptions(parser, numberOptions(), representation))
        return *error;
    return representation;
}

Result<sites::SiteRepresentation> readSiteOptions(const QCommandLineParser &parser,
                                                  const sites::SiteCatalogues &catalogues)
{
    Result<SiteRepresentation> numbers = readSiteNumbers(parser);
    if (!numbers)
        return numbers;
    SiteRepresentation representation = std::move(numbers).value();

    const QString colors = parser.value(QStringLiteral("sector-colors"));
    representation.colorSet =
        find(catalogues.colorSets, &sites::SectorColorSet::description, colors);
    if (representation.colorSet < 0)
        return notInCatalogue(QStringLiteral("sector-colors"), colors, catalogues.colorSets,
                              &sites::SectorColorSet::description);

    const QString type = parser.value(QStringLiteral("pylon-type"));
    representation.pylonType = find(catalogues.pylonTypes, &sites::PylonType::type, type);
    if (representation.pylonType < 0)
        return notInCatalogue(QStringLiteral("pylon-type"), type, catalogues.pylonTypes,
                              &sites::PylonType::type);
    return representation;
}

} // namespace vlt::batch
