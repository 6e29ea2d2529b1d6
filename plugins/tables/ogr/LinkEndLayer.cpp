#include "plugins/tables/ogr/LinkEndLayer.h"

#include "contract/LinkEnds.h"

namespace vlt::driver {

namespace {

/// The fields, in their order in the layer.
enum FieldNumber {
    SiteName,
    X,
    Y,
    SectorId,
    HeightM,
    AzimuthDeg,
    TiltDeg,
    LinkName,
    LinkRowNumber,
    EndName,
    FrequencyMHz,
    LengthM,
};

/// The column for the name of a site in the site tables of the same planning tool.
const char *siteField(const std::string &format)
{
    return format.starts_with("atoll")   ? "NAME"
           : format.starts_with("asset") ? "Site name"
                                         : "Site ID";
}

} // namespace

LinkEndLayer::LinkEndLayer(const TableSource &source)
    : TableLayer(source, source.facts().table.sheet + "_ends", 2)
    , m_reader(source)
{
    const LinkLayout &layout = facts().links();
    const bool meters = layout.unit == CoordinateUnit::Meters;
    defineField(siteField(layout.format), OFTString);
    defineField(meters ? "X" : "Longitude", OFTReal);
    defineField(meters ? "Y" : "Latitude", OFTReal);
    defineField(contract::LinkSectorField, OFTString);
    defineField(contract::LinkHeightField, OFTReal);
    defineField(contract::LinkAzimuthField, OFTReal);
    defineField(contract::LinkTiltField, OFTReal);
    defineField(contract::LinkNameField, OFTString);
    defineField(contract::LinkRowField, OFTInteger64);
    defineField(contract::LinkEndField, OFTString);
    defineField(contract::LinkFrequencyField, OFTReal);
    defineField(contract::LinkLengthField, OFTReal);
    setGeometryType(wkbPoint);
}

RowMeaning LinkEndLayer::readRow(int64_t row, const FieldCells &cells,
                                 std::vector<RowProblem> &problems) const
{
    return m_reader.read(row, cells.cells(), problems);
}

void LinkEndLayer::mergeInto(OGREnvelope &extent, const TableRow &row) const
{
    for (const Position &end : row.link().placed) {
        if (end.found)
            extent.Merge(end.x, end.y);
    }
}

void LinkEndLayer::placeFeature(OGRFeature &feature, const TableRow &row, int part) const
{
    const Position &end = row.link().placed[static_cast<std::size_t>(part)];
    if (end.found)
        setGeometry(feature, std::make_unique<OGRPoint>(end.x, end.y));
}

void LinkEndLayer::set(OGRFeature &feature, int field, const std::string &text) const
{
    if (!text.empty() && !isIgnored(static_cast<std::size_t>(field)))
        feature.SetField(field, text.c_str());
}

void LinkEndLayer::set(OGRFeature &feature, int field, const std::optional<double> &number) const
{
    if (number && !isIgnored(static_cast<std::size_t>(field)))
        feature.SetField(field, *number);
}

void LinkEndLayer::fillFeature(OGRFeature &feature, const TableRow &row, int part) const
{
    const LinkRow &link = row.link();
    const auto end = static_cast<std::size_t>(part);
    const LinkEndValues &values = link.values.ends[end];
    const Position &position = link.inFile[end];
    set(feature, SiteName, values.identifier);
    set(feature, X, position.found ? std::optional(position.x) : std::nullopt);
    set(feature, Y, position.found ? std::optional(position.y) : std::nullopt);
    set(feature, SectorId, link.values.name);
    set(feature, HeightM, values.heightM);
    set(feature, AzimuthDeg, m_reader.azimuthDeg(link, end));
    set(feature, TiltDeg, values.tiltDeg);
    set(feature, LinkName,
        link.values.name.empty() ? "row " + std::to_string(row.number) : link.values.name);
    if (!isIgnored(LinkRowNumber))
        feature.SetField(LinkRowNumber, static_cast<GIntBig>(row.number));
    set(feature, EndName, part == 0 ? contract::EndA : contract::EndB);
    set(feature, FrequencyMHz, values.frequencyMHz);
    set(feature, LengthM, link.lengthM);
}

void LinkEndLayer::addFileProblems(ProblemList &problems) const
{
    m_reader.addFileProblems(problems);
}

} // namespace vlt::driver
