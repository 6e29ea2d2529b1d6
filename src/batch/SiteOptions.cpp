#include "batch/SiteOptions.h"

#include "batch/NumberOptions.h"
#include "language/VltLanguageManager.h"

namespace vlt::batch {

namespace {

using sites::SiteRepresentation;
namespace query = contract::query;

const std::vector<NumberOption<SiteRepresentation>> &numberOptions()
{
    static const std::vector<NumberOption<SiteRepresentation>> options = {
        {QStringLiteral("sector-height"),
         dico_label("MESS_OPT_SECTOR_HEIGHT", "Sector height in metres"),
         &SiteRepresentation::sectorHeightM, query::SectorHeightM},
        {QStringLiteral("sector-radius"),
         dico_label("MESS_OPT_SECTOR_RADIUS", "Sector radius in metres"),
         &SiteRepresentation::sectorRadiusM, query::SectorRadiusM},
        {QStringLiteral("sector-spacing"),
         dico_label("MESS_OPT_SECTOR_SPACING", "Vertical spacing between sectors in metres"),
         &SiteRepresentation::sectorSpacingM, query::SectorSpacingM},
        {QStringLiteral("transparency"),
         dico_label("MESS_OPT_TRANSPARENCY", "Transparency of the sectors in per cent"),
         &SiteRepresentation::transparencyPercent, query::TransparencyPercent},
        {QStringLiteral("symbolic-distance"),
         dico_label("MESS_OPT_SYMBOLIC_DISTANCE",
                    "Apparition distance of the symbolic representation in metres"),
         &SiteRepresentation::symbolicDistanceM, query::SymbolicDistanceM},
        {QStringLiteral("pylon-width"),
         dico_label("MESS_OPT_PYLON_WIDTH", "Width of the pylons in metres"),
         &SiteRepresentation::pylonWidthM, query::PylonWidthM},
        {QStringLiteral("antenna-size"),
         dico_label("MESS_OPT_ANTENNA_SIZE", "Antennas size in per cent"),
         &SiteRepresentation::antennaScalePercent, query::AntennaScalePercent},
        {QStringLiteral("realistic-distance"),
         dico_label("MESS_OPT_REALISTIC_DISTANCE",
                    "Apparition distance of the precise representation in metres"),
         &SiteRepresentation::realisticDistanceM, query::RealisticDistanceM},
    };
    return options;
}

/// The names of a catalogue's entry that an option accepts, besides its number.
struct Choice
{
    QString shown; ///< name in lists of the entries
    QStringList names;
};

QList<Choice> choicesOf(const QList<sites::PylonType> &types)
{
    QList<Choice> choices;
    for (const sites::PylonType &type : types)
        choices << Choice{type.type, QStringList{type.type} + type.names};
    return choices;
}

QList<Choice> choicesOf(const QList<sites::SectorColorSet> &sets)
{
    QList<Choice> choices;
    for (const sites::SectorColorSet &set : sets)
        choices << Choice{set.names.join(QStringLiteral(" / ")), set.names};
    return choices;
}

/// Index of the entry with the name `wanted`, in upper or lower case, else of the entry with this
/// number; -1 for none.
int find(const QList<Choice> &choices, const QString &wanted)
{
    for (int i = 0; i < choices.size(); ++i) {
        if (choices.at(i).names.contains(wanted, Qt::CaseInsensitive))
            return i;
    }
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    return isNumber && number >= 1 && number <= choices.size() ? number - 1 : -1;
}

QStringList numbered(const QList<Choice> &choices)
{
    QStringList names;
    for (int i = 0; i < choices.size(); ++i)
        names << QStringLiteral("%1 = ").arg(i + 1) + choices.at(i).shown;
    return names;
}

Error notInCatalogue(const QString &option, const QString &value, const QList<Choice> &choices)
{
    return wrongUsage(dico_label("MESS_USE_NOT_IN_CATALOGUE", "--%1: no \"%2\" (%3)")
                          .arg(option, value, numbered(choices).join(QStringLiteral("; "))));
}

} // namespace

QList<QCommandLineOption> siteOptions()
{
    return numberOptionList(numberOptions()) +
           QList<QCommandLineOption>{
               {QStringLiteral("sector-colors"),
                dico_label("MESS_OPT_SECTOR_COLORS",
                           "Sector colors: the number of a set in the catalogue, from 1, or its "
                           "name in any language (default 1)."),
                QStringLiteral("N|NAME"), QStringLiteral("1")},
               {QStringLiteral("pylon-type"),
                dico_label("MESS_OPT_PYLON_TYPE",
                           "Type of pylons, or its number in the catalogue, from 1, or its name in "
                           "any language (default 1)."),
                QStringLiteral("TYPE|N|NAME"), QStringLiteral("1")},
           };
}

QString catalogueLists(const Place &place)
{
    const sites::SiteCatalogues catalogues =
        sites::loadSiteCatalogues(place.installDir, place.language);
    const auto list = [](const QString &heading, const QList<Choice> &choices) {
        QString text;
        for (const QString &line : numbered(choices))
            text += QStringLiteral("  ") + line + QLatin1Char('\n');
        return text.isEmpty() ? text : QLatin1Char('\n') + heading + QLatin1Char('\n') + text;
    };
    return list(dico_label("MESS_HELP_COLOR_SETS", "Sector colors:"),
                choicesOf(catalogues.colorSets)) +
           list(dico_label("MESS_HELP_PYLON_TYPES", "Types of pylons:"),
                choicesOf(catalogues.pylonTypes));
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
    const QList<Choice> sets = choicesOf(catalogues.colorSets);
    representation.colorSet = find(sets, colors);
    if (representation.colorSet < 0)
        return notInCatalogue(QStringLiteral("sector-colors"), colors, sets);

    const QString type = parser.value(QStringLiteral("pylon-type"));
    const QList<Choice> types = choicesOf(catalogues.pylonTypes);
    representation.pylonType = find(types, type);
    if (representation.pylonType < 0)
        return notInCatalogue(QStringLiteral("pylon-type"), type, types);
    return representation;
}

} // namespace vlt::batch
