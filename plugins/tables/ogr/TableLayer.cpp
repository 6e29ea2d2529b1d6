#include "plugins/tables/ogr/TableLayer.h"

#include "contract/TableTexts.h"
#include "plugins/tables/bytes/Refusal.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>

#include <cmath>
#include <cstring>

namespace vlt::driver {

namespace {

using contract::formatted;

constexpr char ProblemsDomain[] = "problems";

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

TableLayer::TableLayer(TableSource source, const std::string &name, int partCount)
    : m_source(std::move(source))
    , m_definition(new OGRFeatureDefn(name.c_str()))
    , m_partCount(partCount)
    , m_cells(m_source.facts().table)
{
    m_definition->Reference();
    m_definition->SetGeomType(wkbNone);
    SetDescription(m_definition->GetName());
    const TableDeclaration &declaration = facts().declaration();
    OGRLayer::SetMetadataItem("format", declaration.format.c_str());
    OGRLayer::SetMetadataItem("unit", unitName(declaration.unit));
    OGRLayer::SetMetadataItem("epsg", systems().knownEpsg().c_str());
    if (const std::string &encoding = facts().table.encoding.name; !encoding.empty())
        OGRLayer::SetMetadataItem("encoding", encoding.c_str());
}

TableLayer::~TableLayer()
{
    m_definition->Release();
}

void TableLayer::defineField(const char *name, OGRFieldType type)
{
    OGRFieldDefn definition(name, type);
    m_definition->AddFieldDefn(&definition);
    m_ignored.push_back(0);
}

void TableLayer::defineColumns()
{
    for (const Field &field : facts().table.fields)
        defineField(field.name.c_str(), ogrType(field.type));
}

void TableLayer::setGeometryType(OGRwkbGeometryType type)
{
    m_definition->SetGeomType(type);
    if (m_definition->GetGeomFieldCount() > 0)
        m_definition->GetGeomFieldDefn(0)->SetSpatialRef(systems().target());
}

void TableLayer::setGeometry(OGRFeature &feature, std::unique_ptr<OGRGeometry> geometry) const
{
    geometry->assignSpatialReference(m_definition->GetGeomFieldDefn(0)->GetSpatialRef());
    feature.SetGeometryDirectly(geometry.release());
}

/// Turns a damaged file met while reading into the library's error.
template<typename Action>
auto TableLayer::guarded(Action action) -> decltype(action())
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

void TableLayer::ResetReading()
{
    m_rows.reset();
    m_nextPart = 0;
    m_walked.reset();
    m_failed = false;
}

/// Fields may be ignored at any time before a walk.
std::unique_ptr<DataRows> TableLayer::startWalk()
{
    for (int field = 0; field < m_definition->GetFieldCount(); ++field)
        m_ignored[static_cast<std::size_t>(field)] =
            m_definition->GetFieldDefn(field)->IsIgnored() ? 1 : 0;
    return m_source.file->rows();
}

void TableLayer::setColumns(OGRFeature &feature) const
{
    const std::vector<Field> &fields = facts().table.fields;
    const std::vector<const Cell *> &cells = m_cells.cells();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Cell *cell = cells[i];
        if (!cell || isIgnored(i))
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

void TableLayer::takeRow(std::vector<RowProblem> &problems)
{
    m_cells.take(m_rows->cells(), problems);
    readRow(m_rows->rowNumber(), problems);
}

std::unique_ptr<OGRFeature> TableLayer::makeFeature(int part)
{
    auto feature = std::make_unique<OGRFeature>(m_definition);
    feature->SetFID(m_rows->rowNumber() * m_partCount + part);
    if (m_definition->GetGeomFieldCount() > 0 &&
        (m_poFilterGeom || !m_definition->IsGeometryIgnored()))
        placeFeature(*feature, part);
    fillFeature(*feature, part);
    return feature;
}

/// Goes to the next row and reads it; false behind the last one.
bool TableLayer::nextRow()
{
    if (!m_rows) {
        m_rows = startWalk();
        if (!*m_source.problems)
            m_walked = fileProblems();
    }
    if (!m_rows->advance()) {
        if (m_walked)
            *m_source.problems = std::move(m_walked);
        m_walked.reset();
        return false;
    }
    std::vector<RowProblem> problems;
    takeRow(problems);
    m_source.warnings->warn(m_source.facts().table.sheet, problems);
    if (m_walked)
        m_walked->add(std::move(problems));
    return true;
}

OGRFeature *TableLayer::readFeature()
{
    if (m_nextPart == 0 && !nextRow())
        return nullptr;
    const int part = m_nextPart;
    m_nextPart = (part + 1) % m_partCount;
    return makeFeature(part).release();
}

OGRFeature *TableLayer::GetNextFeature()
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

OGRErr TableLayer::SetNextByIndex(GIntBig index)
{
    if (m_poFilterGeom || m_poAttrQuery)
        return OGRLayer::SetNextByIndex(index);
    ResetReading();
    const GIntBig before = index / m_partCount; ///< rows to leave out
    if (index < 0 || static_cast<uint64_t>(before) >= facts().table.rowCount) {
        m_failed = true;
        return OGRERR_FAILURE;
    }
    const bool there = guarded([&] {
        m_rows = startWalk();
        GIntBig at = 0;
        while (at < before && m_rows->advance())
            ++at;
        const int part = static_cast<int>(index % m_partCount);
        const bool found = at == before && (part == 0 || nextRow());
        m_nextPart = part;
        return found;
    });
    return there ? OGRERR_NONE : OGRERR_FAILURE;
}

OGRFeature *TableLayer::GetFeature(GIntBig fid)
{
    const GIntBig row = fid / m_partCount;
    if (row <= 0)
        return nullptr;
    // A walk of its own: reading one after another goes on where it was.
    std::unique_ptr<DataRows> walk = guarded([this] { return startWalk(); });
    m_rows.swap(walk);
    OGRFeature *feature = guarded([&]() -> OGRFeature * {
        if (!m_rows || !m_rows->seek(row) || m_rows->rowNumber() != row)
            return nullptr;
        std::vector<RowProblem> problems;
        takeRow(problems);
        m_source.warnings->warn(facts().table.sheet, problems);
        return makeFeature(static_cast<int>(fid % m_partCount)).release();
    });
    m_rows.swap(walk);
    retakeRow();
    return feature;
}

GIntBig TableLayer::GetFeatureCount(int force)
{
    if (m_poFilterGeom || m_poAttrQuery)
        return OGRLayer::GetFeatureCount(force);
    return static_cast<GIntBig>(facts().table.rowCount) * m_partCount;
}

/// Goes through all rows, apart from the walk that may be going on. False where the file turns out
/// to be damaged; what was found until then is there.
bool TableLayer::survey(bool warns, OGREnvelope &extent, ProblemList &found)
{
    std::unique_ptr<DataRows> walk = guarded([this] { return startWalk(); });
    if (!walk)
        return false;
    m_rows.swap(walk);
    const bool whole = guarded([&] {
        std::vector<RowProblem> problems;
        while (m_rows->advance()) {
            takeRow(problems);
            mergeInto(extent);
            if (warns)
                m_source.warnings->warn(facts().table.sheet, problems);
            found.add(std::move(problems));
            problems.clear();
        }
        return true;
    });
    m_rows.swap(walk);
    retakeRow();
    return whole;
}

/// After another row was read: a walk that stands within a row needs that row again.
void TableLayer::retakeRow()
{
    std::vector<RowProblem> known;
    if (m_nextPart > 0)
        guarded([&] {
            takeRow(known);
            return true;
        });
}

OGRErr TableLayer::GetExtent(OGREnvelope *extent, int force)
{
    if (!m_extent.IsInit()) {
        OGREnvelope found;
        ProblemList problems = fileProblems();
        if (!force || !survey(true, found, problems))
            return OGRERR_FAILURE;
        m_extent = found;
        *m_source.problems = std::move(problems);
    }
    *extent = m_extent;
    return m_extent.IsInit() ? OGRERR_NONE : OGRERR_FAILURE;
}

int TableLayer::TestCapability(const char *capability)
{
    if (EQUAL(capability, OLCFastFeatureCount))
        return !m_poFilterGeom && !m_poAttrQuery;
    if (EQUAL(capability, OLCRandomRead))
        return !facts().table.marks.empty();
    if (EQUAL(capability, OLCFastGetExtent))
        return m_extent.IsInit();
    return EQUAL(capability, OLCStringsAsUTF8) || EQUAL(capability, OLCIgnoreFields);
}

ProblemList TableLayer::fileProblems() const
{
    ProblemList problems;
    systems().addProblems(problems);
    addFileProblems(problems);
    if (facts().table.encoding.isGuess)
        problems.add(
            {0, {}, false, formatted("MESS_TAB_ENCODING_GUESSED", {facts().table.encoding.name})});
    std::vector<RowProblem> ofHeader;
    m_cells.takeFaults(facts().table.header.row, facts().table.header.faults, ofHeader);
    problems.add(std::move(ofHeader));
    return problems;
}

bool TableLayer::isProblemsDomain(const char *domain) const
{
    return listsProblems() && domain && EQUAL(domain, ProblemsDomain);
}

/// A walk that went through all rows has found the problems; otherwise they are looked for.
char **TableLayer::problemsMetadata()
{
    if (m_problemsItems.Count() > 0)
        return m_problemsItems.List();
    std::optional<ProblemList> &problems = *m_source.problems;
    if (!problems) {
        OGREnvelope extent;
        ProblemList found = fileProblems();
        survey(false, extent, found);
        problems = std::move(found);
    }
    m_problemsItems.SetNameValue("COUNT", std::to_string(problems->count()).c_str());
    std::size_t number = 0;
    for (const RowProblem &problem : problems->kept()) {
        const std::string row = problem.row > 0 ? std::to_string(problem.row) : std::string();
        const std::string value = "PROBLEM_" + std::to_string(++number) + '=' + row + '|' +
                                  problem.column + '|' + (problem.isError ? "Error" : "Warning") +
                                  '|' + problem.text;
        m_problemsItems.AddString(value.c_str());
    }
    return m_problemsItems.List();
}

char **TableLayer::GetMetadata(const char *domain)
{
    return isProblemsDomain(domain) ? problemsMetadata() : OGRLayer::GetMetadata(domain);
}

const char *TableLayer::GetMetadataItem(const char *name, const char *domain)
{
    if (isProblemsDomain(domain))
        return CSLFetchNameValue(problemsMetadata(), name);
    return OGRLayer::GetMetadataItem(name, domain);
}

char **TableLayer::GetMetadataDomainList()
{
    if (!listsProblems())
        return OGRLayer::GetMetadataDomainList();
    return BuildMetadataDomainList(OGRLayer::GetMetadataDomainList(), FALSE, ProblemsDomain,
                                   nullptr);
}

} // namespace vlt::driver
