#include "plugins/tables/ogr/SiteLayer.h"

#include "contract/TableMetadata.h"
#include "contract/TableTexts.h"
#include "plugins/tables/ogr/MetadataItems.h"
#include "plugins/tables/ogr/ZoneSurvey.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/CoordinateScale.h"

namespace vlt::driver {

namespace {

/// The shape of a table in words.
std::string shapeText(const TableFacts &facts)
{
    using contract::formatted;
    const SiteLayout &layout = facts.sites();
    const std::string rows = std::to_string(facts.table.rowCount);
    const std::string most = std::to_string(layout.maxTransmitters);
    if (facts.siteIndex) {
        const std::string sites = std::to_string(facts.siteIndex->sites().size());
        std::string range = std::to_string(facts.siteIndex->transmitterRange().first);
        if (range != most)
            range += "\u2013" + most;
        if (layout.roles.shape == SiteShape::Joined)
            return formatted("MESS_TAB_SHAPE_JOINED", {rows, sites, range});
        const int named = layout.roles.siteId >= 0 ? layout.roles.siteId : layout.roles.siteName;
        return named < 0 ? formatted("MESS_TAB_SHAPE_PLACES", {rows, sites, range})
                         : formatted("MESS_TAB_SHAPE_TALL",
                                     {rows, sites, range,
                                      facts.table.fields[static_cast<std::size_t>(named)].name});
    }
    if (layout.roles.shape == SiteShape::Own)
        return formatted("MESS_TAB_SHAPE_ROWS", {rows});
    return layout.roles.shape == SiteShape::Lists
               ? formatted("MESS_TAB_SHAPE_LISTS", {rows, most})
               : formatted("MESS_TAB_SHAPE_NUMBERED", {rows, most});
}

/// The values of a site from which those of the offered fields are taken.
struct OfferedInput
{
    const std::vector<const Cell *> &cells;
    const SiteRoles *roles;
    std::optional<std::string_view> indexedId; ///< of a site in several rows
    const Position *position;
    const TransmitterValues *transmitter; ///< null for none
};

std::string offeredText(OfferedValue value, const OfferedInput &input)
{
    if (value == OfferedValue::SiteId) {
        if (input.indexedId)
            return std::string(*input.indexedId);
        const std::string id = fieldText(input.cells, input.roles->siteId);
        return id.empty() ? fieldText(input.cells, input.roles->siteName) : id;
    }
    if (!input.transmitter)
        return {};
    return value == OfferedValue::SectorId ? input.transmitter->sectorId
                                           : input.transmitter->technology;
}

std::optional<double> groundHeightM(const OfferedInput &input)
{
    const QuantityField &height = input.roles->groundHeight;
    const std::string unit = fieldText(input.cells, height.unitField);
    const auto metres = unit.empty() ? std::optional(height.unit.value_or(1))
                                     : metresOfUnit(unit, installedVocabulary().words);
    return metres ? readLengthM(fieldText(input.cells, height.field), *metres) : std::nullopt;
}

std::optional<double> offeredNumber(OfferedValue value, const OfferedInput &input)
{
    switch (value) {
    case OfferedValue::X:
        return input.position->found ? std::optional(input.position->x) : std::nullopt;
    case OfferedValue::Y:
        return input.position->found ? std::optional(input.position->y) : std::nullopt;
    case OfferedValue::GroundHeight:
        return groundHeightM(input);
    default:
        break;
    }
    const TransmitterValues *transmitter = input.transmitter;
    if (!transmitter)
        return std::nullopt;
    switch (value) {
    case OfferedValue::Height:
        return transmitter->heightM;
    case OfferedValue::Azimuth:
        return transmitter->azimuthDeg;
    case OfferedValue::MechanicalTilt:
        return transmitter->mechanicalTiltDeg;
    case OfferedValue::ElectricalTilt:
        return transmitter->electricalTiltDeg;
    case OfferedValue::BeamWidth:
        return transmitter->beamWidthDeg;
    case OfferedValue::Frequency:
        return transmitter->frequencyMHz;
    default:
        return std::nullopt;
    }
}

} // namespace

SiteLayer::SiteLayer(const TableSource &source)
    : TableLayer(source, source.facts().table.sheet, 1)
    , m_reader(source)
{
    for (const OfferedField &field : facts().sites().offered)
        defineField(field.name.c_str(), field.isText() ? OFTString : OFTReal);
    defineColumns();
    setGeometryType(facts().sites().point.found() ? wkbPoint : wkbNone);
}

bool SiteLayer::hasFeatures(int64_t row) const
{
    return !facts().siteIndex || facts().siteIndex->beginningIn(row);
}

GIntBig SiteLayer::rowsWithFeatures() const
{
    return static_cast<GIntBig>(facts().siteIndex ? facts().siteIndex->sites().size()
                                                  : facts().table.rowCount);
}

RowMeaning SiteLayer::readRow(int64_t row, const FieldCells &cells,
                              std::vector<RowProblem> &problems) const
{
    return m_reader.read(row, cells, problems);
}

void SiteLayer::addPositions(SurveyedPositions &positions, const TableRow &row) const
{
    const Position &position = row.site().inFile;
    if ((!position.found && !position.isOutside) || !hasFeatures(row.number))
        return;
    // An index reports by row that an id stands for several sites.
    const std::string id = facts().siteIndex
                               ? std::string()
                               : fieldText(row.cells.cells(), facts().sites().roles.siteId);
    positions.add(row.number, position.x, position.y, id);
}

void SiteLayer::mergeInto(OGREnvelope &extent, const TableRow &row) const
{
    const Position &position = row.site().placed;
    if (position.found && hasFeatures(row.number))
        extent.Merge(position.x, position.y);
}

void SiteLayer::placeFeature(OGRFeature &feature, const TableRow &row, int) const
{
    const Position &position = row.site().placed;
    if (position.found)
        setGeometry(feature, std::make_unique<OGRPoint>(position.x, position.y));
}

void SiteLayer::fillFeature(OGRFeature &feature, const TableRow &row, int) const
{
    if (!facts().sites().offered.empty())
        setOffered(feature, row);
    setColumns(feature, row);
}

/// Sets the fields before those of the source.
void SiteLayer::setOffered(OGRFeature &feature, const TableRow &row) const
{
    const SiteLayout &layout = facts().sites();
    const SiteRow &site = row.site();
    std::optional<std::string_view> id;
    std::vector<TransmitterValues> ofSite;
    if (const auto &index = facts().siteIndex) {
        const IndexedSite &indexed = *index->beginningIn(row.number);
        id = index->idOf(indexed);
        ofSite = index->transmittersOf(indexed);
    }
    const auto transmitter = [&](std::size_t at) -> const TransmitterValues * {
        if (id)
            return at < ofSite.size() ? &ofSite[at] : nullptr;
        return at < site.transmitters.size() && site.transmitters[at] ? &*site.transmitters[at]
                                                                      : nullptr;
    };
    for (std::size_t i = 0; i < layout.offered.size(); ++i) {
        if (isIgnored(i))
            continue;
        const OfferedField &field = layout.offered[i];
        const OfferedInput input{row.cells.cells(), &layout.roles, id, &site.inFile,
                                 transmitter(field.transmitter)};
        if (field.isText()) {
            if (const std::string text = offeredText(field.value, input); !text.empty())
                feature.SetField(static_cast<int>(i), text.c_str());
        } else if (const auto number = offeredNumber(field.value, input))
            feature.SetField(static_cast<int>(i), *number);
    }
}

CPLStringList SiteLayer::rolesMetadata() const
{
    namespace metadata = contract::metadata;
    const SiteLayout &layout = facts().sites();
    CPLStringList items;
    items.SetNameValue(metadata::ShapeItem, shapeText(facts()).c_str());
    for (const ColumnRole &column : layout.roles.columns)
        addRoleItem(
            items, roleName(column.role), column.sector < 0 ? "" : std::to_string(column.sector),
            facts().table.fields[static_cast<std::size_t>(column.field)].name, column.evidence);
    return items;
}

void SiteLayer::addFileProblems(ProblemList &problems) const
{
    const SiteLayout &layout = facts().sites();
    if (const auto &unread = layout.unreadGrid)
        problems.add(
            {0, {}, true, contract::formatted("MESS_TAB_GRID", {unread->column, unread->grid})});
    if (!layout.point.found())
        problems.add({0, {}, true, contract::formatted("MESS_TAB_NO_COORDINATES")});
    problems.add(std::vector(facts().sites().roles.problems));
    addZoneProblems(layout.point, problems);
    if (const std::string &text = facts().sites().systemProblem; !text.empty())
        problems.add({0, {}, false, text});
    std::vector<RowProblem> ofScale;
    addScaleProblem(facts().sites().point, facts().table.fields, ofScale);
    problems.add(std::move(ofScale));
}

} // namespace vlt::driver
