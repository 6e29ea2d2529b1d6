#include "ogr/SiteLayer.h"

#include "bytes/Refusal.h"
#include "tabletexts/TextPatterns.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>

#include <cmath>
#include <cstring>

namespace vlt::tables {

namespace {

using tabletexts::formatted;

constexpr size_t MostWarnings = 50;
constexpr char ProblemsDomain[] = "problems";

void release(OGRSpatialReference *srs)
{
    srs->Release();
}

/// A system from a code, a WKT or whatever the library understands; bare digits are EPSG codes.
OGRSpatialReference *makeSrs(const std::string &text)
{
    auto *srs = new OGRSpatialReference();
    srs->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    // The system of most tables needs no look into the database, which costs more than a table's
    // header.
    if (text == "4326" || text == "EPSG:4326") {
        srs->importFromWkt(SRS_WKT_WGS84_LAT_LONG);
        return srs;
    }
    const bool digits = text.find_first_not_of("0123456789") == std::string::npos;
    // Only texts: a coordinate system is never fetched nor read from a file.
    const OGRErr error =
        digits ? srs->importFromEPSG(atoi(text.c_str()))
               : srs->SetFromUserInput(text.c_str(),
                                       OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get());
    if (error == OGRERR_NONE)
        return srs;
    srs->Release();
    throw RefusedFile(Refusal::BadOption, "MESS_TAB_UNKNOWN_SRS", {text});
}

OGRFieldType ogrType(FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        return OFTInteger;
    case FieldType::Integer64:
        return OFTInteger64;
    case FieldType::Real:
        return OFTReal;
    case FieldType::Text:
        break;
    }
    return OFTString;
}

const char *unitName(CoordinateUnit unit)
{
    return unit == CoordinateUnit::Meters ? "METERS"
           : unit == CoordinateUnit::Dms  ? "DMS"
                                          : "DEGREES";
}

} // namespace

std::string describe(const RowProblem &problem)
{
    std::string text;
    if (problem.row > 0)
        text = "row " + std::to_string(problem.row) + (problem.column.empty() ? ": " : ", ");
    if (!problem.column.empty())
        text += "column \"" + problem.column + "\": ";
    return text + problem.text;
}

SiteLayer::SiteLayer(std::shared_ptr<SiteTable> table, const std::string &sourceSrs,
                     const std::string &targetSrs)
    : m_table(std::move(table))
    , m_definition(new OGRFeatureDefn(m_table->facts().table.sheet.c_str()))
    , m_fileSrs(nullptr, release)
    , m_cells(m_table->facts().table)
    , m_placer(m_table->facts().table, m_table->facts().layout)
    , m_ignored(m_table->facts().table.fields.size())
{
    m_definition->Reference();
    try {
        defineFields();
        setSystems(sourceSrs, targetSrs);
    } catch (...) {
        m_definition->Release();
        throw;
    }
    SetDescription(m_definition->GetName());
    const SiteLayout &layout = m_table->facts().layout;
    OGRLayer::SetMetadataItem("format", layout.format.c_str());
    OGRLayer::SetMetadataItem("unit", unitName(layout.unit));
    OGRLayer::SetMetadataItem("epsg", m_unknownEpsg ? "" : layout.epsg.c_str());
}

SiteLayer::~SiteLayer()
{
    m_definition->Release();
}

void SiteLayer::defineFields()
{
    for (const Field &field : m_table->facts().table.fields) {
        OGRFieldDefn definition(field.name.c_str(), ogrType(field.type));
        m_definition->AddFieldDefn(&definition);
    }
    m_definition->SetGeomType(m_table->facts().layout.hasCoordinates() ? wkbPoint : wkbNone);
}

void SiteLayer::setSystems(const std::string &sourceSrs, const std::string &targetSrs)
{
    const SiteLayout &layout = m_table->facts().layout;
    std::string source = sourceSrs;
    if (source.empty() && !layout.epsg.empty()) {
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        m_unknownEpsg =
            OGRSpatialReference().importFromEPSG(atoi(layout.epsg.c_str())) != OGRERR_NONE;
        source = m_unknownEpsg ? std::string() : layout.epsg;
    }
    if (source.empty() && layout.unit != CoordinateUnit::Meters)
        source = "4326";
    std::unique_ptr<OGRSpatialReference, void (*)(OGRSpatialReference *)> target(nullptr, release);
    if (!source.empty())
        m_fileSrs.reset(makeSrs(source));
    if (!targetSrs.empty())
        target.reset(makeSrs(targetSrs));
    if (target && m_fileSrs && !target->IsSame(m_fileSrs.get())) {
        m_transformation.reset(OGRCreateCoordinateTransformation(m_fileSrs.get(), target.get()));
        if (!m_transformation)
            throw RefusedFile(Refusal::BadOption, "MESS_TAB_NO_WAY", {source, targetSrs});
    }
    // Where the file's system is not known its numbers are taken as the target's, which is said
    // among the problems.
    m_targetUnreachable = target && !m_fileSrs;
    if (m_definition->GetGeomFieldCount() > 0)
        m_definition->GetGeomFieldDefn(0)->SetSpatialRef(target ? target.get() : m_fileSrs.get());
}

/// Turns a damaged file met while reading into the library's error.
template<typename Action>
auto SiteLayer::guarded(Action action) -> decltype(action())
{
    try {
        return action();
    } catch (const RefusedFile &refused) {
        CPLError(CE_Failure, CPLE_FileIO, "%s: %s", GetDescription(), refused.what());
    } catch (const std::bad_alloc &) {
        CPLError(CE_Failure, CPLE_OutOfMemory, "%s: %s", GetDescription(),
                 formatted("MESS_TAB_OUT_OF_MEMORY").c_str());
    }
    m_failed = true;
    return {};
}

void SiteLayer::ResetReading()
{
    m_rows.reset();
    m_walked.reset();
    m_failed = false;
}

/// Fields may be ignored at any time before a walk.
std::unique_ptr<DataRows> SiteLayer::startWalk()
{
    for (int field = 0; field < m_definition->GetFieldCount(); ++field)
        m_ignored[static_cast<size_t>(field)] =
            m_definition->GetFieldDefn(field)->IsIgnored() ? 1 : 0;
    return m_table->rows();
}

void SiteLayer::warn(const std::vector<RowProblem> &problems)
{
    if (problems.empty())
        return;
    const bool isNew = !m_problemsOmitted && m_warnedRows.insert(problems.front().row).second;
    for (const RowProblem &problem : problems) {
        if (!isNew || m_problemsOmitted)
            break;
        m_problemsOmitted = ++m_warnings > MostWarnings;
        if (!m_problemsOmitted) {
            CPLError(CE_Warning, CPLE_AppDefined, "%s, %s", GetDescription(),
                     describe(problem).c_str());
            continue;
        }
        CPLError(CE_Warning, CPLE_AppDefined, "%s: %s", GetDescription(),
                 formatted("MESS_TAB_FURTHER_PROBLEMS").c_str());
    }
}

void SiteLayer::setFields(OGRFeature &feature)
{
    const std::vector<Field> &fields = m_table->facts().table.fields;
    const std::vector<const Cell *> &cells = m_cells.cells();
    for (size_t i = 0; i < fields.size(); ++i) {
        const Cell *cell = cells[i];
        if (!cell || m_ignored[i])
            continue;
        const int index = static_cast<int>(i);
        if (fields[i].type != FieldType::Text) {
            if (m_cells.isNull(i))
                continue;
            const double number = m_cells.number(i);
            if (fields[i].type == FieldType::Real)
                feature.SetFieldSameTypeUnsafe(index, number);
            else if (fields[i].type == FieldType::Integer)
                feature.SetFieldSameTypeUnsafe(index, static_cast<int>(std::llround(number)));
            else
                feature.SetFieldSameTypeUnsafe(index, static_cast<GIntBig>(std::llround(number)));
            continue;
        }
        const std::string own =
            cell->text.empty() || isOverlong(*cell) ? cellText(*cell) : std::string();
        const std::string_view text = own.empty() ? cell->text : std::string_view(own);
        auto *copy = static_cast<char *>(CPLMalloc(text.size() + 1));
        std::memcpy(copy, text.data(), text.size());
        copy[text.size()] = '\0';
        feature.SetFieldSameTypeUnsafe(index, copy);
    }
}

Position SiteLayer::placeRow(std::vector<RowProblem> &problems)
{
    const int64_t row = m_rows->rowNumber();
    m_cells.take(m_rows->cells(), problems);
    Position position = m_placer.place(row, m_cells.cells(), problems);
    transform(row, position, problems);
    return position;
}

void SiteLayer::transform(int64_t row, Position &position, std::vector<RowProblem> &problems)
{
    if (!position.found || !m_transformation)
        return;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // it becomes a problem of the row
    if (m_transformation->Transform(1, &position.x, &position.y) && std::isfinite(position.x) &&
        std::isfinite(position.y))
        return;
    position.found = false;
    problems.push_back({row, {}, true, formatted("MESS_TAB_OUTSIDE_TARGET")});
}

void SiteLayer::placeFeature(OGRFeature &feature, std::vector<RowProblem> &problems)
{
    const Position position = placeRow(problems);
    warn(problems);
    if (position.found && m_definition->GetGeomFieldCount() > 0 &&
        (m_poFilterGeom || !m_definition->IsGeometryIgnored())) {
        auto *point = new OGRPoint(position.x, position.y);
        point->assignSpatialReference(m_definition->GetGeomFieldDefn(0)->GetSpatialRef());
        feature.SetGeometryDirectly(point);
    }
}

OGRFeature *SiteLayer::readFeature()
{
    if (!m_rows) {
        m_rows = startWalk();
        if (!m_problems)
            m_walked = fileProblems();
    }
    if (!m_rows->advance()) {
        if (m_walked)
            m_problems = std::move(m_walked);
        m_walked.reset();
        return nullptr;
    }
    std::vector<RowProblem> problems;
    auto feature = std::make_unique<OGRFeature>(m_definition);
    feature->SetFID(m_rows->rowNumber());
    placeFeature(*feature, problems);
    if (m_walked)
        m_walked->add(std::move(problems));
    setFields(*feature);
    return feature.release();
}

OGRFeature *SiteLayer::GetNextFeature()
{
    while (!m_failed) {
        std::unique_ptr<OGRFeature> feature(guarded([this] { return readFeature(); }));
        if (!feature)
            break;
        ++m_nFeaturesRead;
        if ((!m_poFilterGeom || FilterGeometry(feature->GetGeometryRef())) &&
            (!m_poAttrQuery || m_poAttrQuery->Evaluate(feature.get()))) {
            if (m_definition->IsGeometryIgnored()) // it was there for the filter
                feature->SetGeometryDirectly(nullptr);
            return feature.release();
        }
    }
    return nullptr;
}

OGRErr SiteLayer::SetNextByIndex(GIntBig index)
{
    if (m_poFilterGeom || m_poAttrQuery)
        return OGRLayer::SetNextByIndex(index);
    ResetReading();
    if (index < 0 || static_cast<uint64_t>(index) >= m_table->facts().table.rowCount) {
        m_failed = true;
        return OGRERR_FAILURE;
    }
    const bool there = guarded([&] {
        m_rows = startWalk();
        GIntBig at = 0;
        while (at < index && m_rows->advance())
            ++at;
        return at == index;
    });
    return there ? OGRERR_NONE : OGRERR_FAILURE;
}

OGRFeature *SiteLayer::GetFeature(GIntBig fid)
{
    if (fid <= 0)
        return nullptr;
    // A walk of its own: reading one after another goes on where it was.
    std::unique_ptr<DataRows> walk = guarded([this] { return startWalk(); });
    m_rows.swap(walk);
    OGRFeature *feature = guarded([&]() -> OGRFeature * {
        if (!m_rows || !m_rows->seek(fid) || m_rows->rowNumber() != fid)
            return nullptr;
        std::vector<RowProblem> problems;
        auto found = std::make_unique<OGRFeature>(m_definition);
        found->SetFID(fid);
        placeFeature(*found, problems);
        setFields(*found);
        return found.release();
    });
    m_rows.swap(walk);
    return feature;
}

GIntBig SiteLayer::GetFeatureCount(int force)
{
    if (m_poFilterGeom || m_poAttrQuery)
        return OGRLayer::GetFeatureCount(force);
    return static_cast<GIntBig>(m_table->facts().table.rowCount);
}

/// Goes through all rows, apart from the walk that may be going on. False where the file turns out
/// to be damaged; what was found until then is there.
bool SiteLayer::survey(bool warns, OGREnvelope &extent, ProblemList &found)
{
    std::unique_ptr<DataRows> walk = guarded([this] { return startWalk(); });
    if (!walk)
        return false;
    m_rows.swap(walk);
    const bool whole = guarded([&] {
        std::vector<RowProblem> problems;
        while (m_rows->advance()) {
            if (const Position position = placeRow(problems); position.found)
                extent.Merge(position.x, position.y);
            if (warns)
                warn(problems);
            found.add(std::move(problems));
            problems.clear();
        }
        return true;
    });
    m_rows.swap(walk);
    return whole;
}

OGRErr SiteLayer::GetExtent(OGREnvelope *extent, int force)
{
    if (!m_extent.IsInit()) {
        OGREnvelope found;
        ProblemList problems = fileProblems();
        if (!force || !survey(true, found, problems))
            return OGRERR_FAILURE;
        m_extent = found;
        m_problems = std::move(problems);
    }
    *extent = m_extent;
    return m_extent.IsInit() ? OGRERR_NONE : OGRERR_FAILURE;
}

int SiteLayer::TestCapability(const char *capability)
{
    if (EQUAL(capability, OLCFastFeatureCount))
        return !m_poFilterGeom && !m_poAttrQuery;
    if (EQUAL(capability, OLCRandomRead))
        return !m_table->facts().table.marks.empty();
    if (EQUAL(capability, OLCFastGetExtent))
        return m_extent.IsInit();
    return EQUAL(capability, OLCStringsAsUTF8) || EQUAL(capability, OLCIgnoreFields);
}

/// What is wrong with the table as a whole.
ProblemList SiteLayer::fileProblems() const
{
    const SiteLayout &layout = m_table->facts().layout;
    ProblemList problems;
    if (m_unknownEpsg)
        problems.add({0, {}, false, formatted("MESS_TAB_UNKNOWN_EPSG", {layout.epsg})});
    if (m_targetUnreachable)
        problems.add({0, {}, false, formatted("MESS_TAB_NO_SOURCE_SRS")});
    if (!layout.hasCoordinates())
        problems.add({0, {}, true, formatted("MESS_TAB_NO_COORDINATES")});
    return problems;
}

/// A walk that went through all rows has found the problems; otherwise they are looked for.
char **SiteLayer::problemsMetadata()
{
    if (m_problemsItems.Count() > 0)
        return m_problemsItems.List();
    if (!m_problems) {
        OGREnvelope extent;
        ProblemList found = fileProblems();
        survey(false, extent, found);
        m_problems = std::move(found);
    }
    m_problemsItems.SetNameValue("COUNT", std::to_string(m_problems->count()).c_str());
    size_t number = 0;
    for (const RowProblem &problem : m_problems->kept()) {
        const std::string row = problem.row > 0 ? std::to_string(problem.row) : std::string();
        const std::string value = "PROBLEM_" + std::to_string(++number) + '=' + row + '|' +
                                  problem.column + '|' + (problem.isError ? "Error" : "Warning") +
                                  '|' + problem.text;
        m_problemsItems.AddString(value.c_str());
    }
    return m_problemsItems.List();
}

char **SiteLayer::GetMetadata(const char *domain)
{
    return domain && EQUAL(domain, ProblemsDomain) ? problemsMetadata()
                                                   : OGRLayer::GetMetadata(domain);
}

const char *SiteLayer::GetMetadataItem(const char *name, const char *domain)
{
    if (domain && EQUAL(domain, ProblemsDomain))
        return CSLFetchNameValue(problemsMetadata(), name);
    return OGRLayer::GetMetadataItem(name, domain);
}

char **SiteLayer::GetMetadataDomainList()
{
    return BuildMetadataDomainList(OGRLayer::GetMetadataDomainList(), FALSE, ProblemsDomain,
                                   nullptr);
}

} // namespace vlt::tables
