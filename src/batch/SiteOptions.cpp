#include "batch/SiteOptions.h"

#include "sites/RepresentationLimits.h"

#include <QLocale>

#include <variant>
#include <vector>

namespace vlt::batch {

namespace {

using sites::SiteRepresentation;

/// One number of the representation as an option.
struct NumberOption
{
    QString name;
    QString meaning;
    std::variant<double SiteRepresentation::*, int SiteRepresentation::*> member;
    sites::Limits limits;
};

const std::vector<NumberOption> &numberOptions()
{
    static const std::vector<NumberOption> options = {
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

bool isInteger(const NumberOption &option)
{
    return std::holds_alternative<int SiteRepresentation::*>(option.member);
}

QString plain(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

QString firstRunValue(const NumberOption &option)
{
    const SiteRepresentation firstRun;
    return std::visit([&](auto member) { return plain(firstRun.*member); }, option.member);
}

QString rangeText(const NumberOption &option)
{
    return plain(option.limits.least) + QStringLiteral(" to ") + plain(option.limits.most);
}

/// Sets the member from the text; false for what is no number or out of range.
bool assign(SiteRepresentation &representation, const NumberOption &option, const QString &value)
{
    bool isNumber = false;
    const double number = isInteger(option) ? value.toInt(&isNumber) : value.toDouble(&isNumber);
    if (!isNumber || !(number >= option.limits.least && number <= option.limits.most))
        return false;
    std::visit(
        [&](auto member) {
            using Value = std::remove_reference_t<decltype(representation.*member)>;
            representation.*member = static_cast<Value>(number);
        },
        option.member);
    return true;
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
    for (const NumberOption &option : numberOptions()) {
        parser.addOption(
            {option.name,
             option.meaning + QStringLiteral(", ") + rangeText(option) +
                 QStringLiteral(" (default ") + firstRunValue(option) + QStringLiteral(")."),
             isInteger(option) ? QStringLiteral("INTEGER") : QStringLiteral("NUMBER")});
    }
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
    for (const NumberOption &option : numberOptions()) {
        if (!parser.isSet(option.name))
            continue;
        const QString value = parser.value(option.name);
        if (!assign(representation, option, value))
            return Error{QString(),
                         QStringLiteral("--%1 is %2 %3, not \"")
                                 .arg(option.name,
                                      isInteger(option) ? QStringLiteral("an integer of")
                                                        : QStringLiteral("a number of"),
                                      rangeText(option)) +
                             value + QLatin1Char('"'),
                         {}};
    }
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
