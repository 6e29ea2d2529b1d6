#include "plugins/tables/ogr/TableLayer.h"

#include "contract/TableMetadata.h"
#include "contract/TableReport.h"
#include "contract/TableTexts.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/ogr/Guarded.h"
#include "plugins/tables/ogr/MetadataItems.h"
#include "plugins/tables/ogr/ProposedCorrections.h"
#include "plugins/tables/ogr/RecognisedMapping.h"
#include "plugins/tables/ogr/ReportLayer.h"
#include "plugins/tables/roles/Vocabulary.h"

#include <cpl_conv.h>
#include <cpl_error.h>

#include <cmath>
#include <cstring>

namespace vlt::driver {

namespace {

using contract::formatted;
namespace metadata = contract::metadata;

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
    return unit == CoordinateUnit::Meters ? metadata::Meters
           : unit == CoordinateUnit::Dms  ? metadata::Dms
                                          : metadata::Degrees;
}

/// The numbers of the rows that name the columns: 1,2.
std::string headerRows(const Header &header)
{
    std::string numbers;
    for (const HeaderRow &row : header.rows)
        numbers += (numbers.empty() ? "" : ",") + std::to_string(row.number);
    return numbers;
}

} // namespace

TableLayer::TableLayer(TableSource source, const std::string &name, int partCount)
    : m_source(std::move(source))
    , m_definition(new OGRFeatureDefn(name.c_str()))
    , m_partCount(partCount)
{
    m_definition->Reference();
    m_definition->SetGeomType(wkbNone);
    SetDescription(m_definition->GetName());
    const TableDeclaration &declaration = facts().declaration();
    OGRLayer::SetMetadataItem(metadata::Format, declaration.format.c_str());
    OGRLayer::SetMetadataItem(metadata::Unit, unitName(declaration.unit));
    OGRLayer::SetMetadataItem(metadata::Epsg, systems().knownEpsg().c_str());
    OGRLayer::SetMetadataItem(metadata::HeaderRows, headerRows(facts().table.header).c_str());
    if (const std::string &encoding = facts().table.encoding.name; !encoding.empty())
        OGRLayer::SetMetadataItem(metadata::Encoding, encoding.c_str());
    if (declaration.unit == CoordinateUnit::Meters)
        OGRLayer::SetMetadata(systemItems(facts()).List(), metadata::SystemsDomain);
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
    m_firstColumn = m_ignored.size();
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

/// Runs an action that reads the file; if that fails, no further features are read.
template<typename Action>
bool TableLayer::guarded(Action action)
{
    m_failed = !driver::guarded(GetDescription(), action) || m_failed;
    return !m_failed;
}

void TableLayer::ResetReading()
{
    m_walk.reset();
    m_failed = false;
}

/// The caller may change the ignored fields at any time before a walk.
TableLayer::Walk TableLayer::startWalk()
{
    for (int field = 0; field < m_definition->GetFieldCount(); ++field)
        m_ignored[static_cast<std::size_t>(field)] =
            m_definition->GetFieldDefn(field)->IsIgnored() ? 1 : 0;
    return {m_source.file->rows(), TableRow(facts().table), 0, std::nullopt};
}

void TableLayer::setColumns(OGRFeature &feature, const TableRow &row) const
{
    const std::vector<Field> &fields = facts().table.fields;
    const std::vector<const Cell *> &cells = row.cells.cells();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Cell *cell = cells[i];
        if (!cell || isIgnored(m_firstColumn + i))
            continue;
        const int index = static_cast<int>(m_firstColumn + i);
        if (fields[i].type != FieldType::Text) {
            if (row.cells.isNull(i))
                continue;
            const double number = row.cells.number(i);
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

/// Reads the row at which the walk is.
std::vector<RowProblem> TableLayer::takeRow(Walk &walk) const
{
    std::vector<RowProblem> problems;
    TableRow &row = walk.row;
    row.number = walk.rows->rowNumber();
    row.cells.take(walk.rows->cells(), problems);
    row.meaning = readRow(row.number, row.cells, problems);
    return problems;
}

std::unique_ptr<OGRFeature> TableLayer::makeFeature(const TableRow &row, int part)
{
    auto feature = std::make_unique<OGRFeature>(m_definition);
    feature->SetFID(row.number * m_partCount + part);
    if (m_definition->GetGeomFieldCount() > 0 &&
        (m_poFilterGeom || !m_definition->IsGeometryIgnored()))
        placeFeature(*feature, row, part);
    fillFeature(*feature, row, part);
    return feature;
}

/// Goes to the next row of m_walk that has features; false after the last one. Reads the rows.
bool TableLayer::nextRow()
{
    while (m_walk->rows->advance()) {
        std::vector<RowProblem> problems = takeRow(*m_walk);
        m_source.warnings->warn(facts().table.sheet, problems);
        if (m_walk->survey) {
            m_walk->survey->problems.add(std::move(problems));
            addPositions(m_walk->survey->positions, m_walk->row);
        }
        if (hasFeatures(m_walk->row.number))
            return true;
    }
    if (m_walk->survey) {
        finish(*m_walk->survey);
        *m_source.survey = std::move(m_walk->survey);
    }
    m_walk->survey.reset();
    return false;
}

/// The next feature, whatever the filters are; null after the last one.
std::unique_ptr<OGRFeature> TableLayer::readFeature()
{
    if (!m_walk) {
        m_walk = startWalk();
        if (!*m_source.survey)
            m_walk->survey = startSurvey();
    }
    if (m_walk->nextPart == 0 && !nextRow())
        return nullptr;
    const int part = m_walk->nextPart;
    m_walk->nextPart = (part + 1) % m_partCount;
    return makeFeature(m_walk->row, part);
}

OGRFeature *TableLayer::GetNextFeature()
{
    while (!m_failed) {
        std::unique_ptr<OGRFeature> feature;
        guarded([&] { feature = readFeature(); });
        if (!feature)
            break;
        ++m_nFeaturesRead;
        if ((!m_poFilterGeom || FilterGeometry(feature->GetGeometryRef())) &&
            (!m_poAttrQuery || m_poAttrQuery->Evaluate(feature.get()))) {
            if (m_definition->IsGeometryIgnored()) // only the filter needed it
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
    const GIntBig before = index / m_partCount; ///< rows to skip
    if (index < 0 || before >= rowsWithFeatures()) {
        m_failed = true;
        return OGRERR_FAILURE;
    }
    bool found = false;
    guarded([&] {
        m_walk = startWalk();
        GIntBig at = 0;
        while (at < before && m_walk->rows->advance())
            at += hasFeatures(m_walk->rows->rowNumber()) ? 1 : 0;
        const int part = static_cast<int>(index % m_partCount);
        found = at == before && (part == 0 || nextRow());
        m_walk->nextPart = part;
    });
    return found ? OGRERR_NONE : OGRERR_FAILURE;
}

OGRFeature *TableLayer::GetFeature(GIntBig fid)
{
    const GIntBig row = fid / m_partCount;
    if (row <= 0)
        return nullptr;
    std::unique_ptr<OGRFeature> feature;
    guarded([&] {
        Walk walk = startWalk();
        if (!walk.rows->seek(row) || walk.rows->rowNumber() != row || !hasFeatures(row))
            return;
        m_source.warnings->warn(facts().table.sheet, takeRow(walk));
        feature = makeFeature(walk.row, static_cast<int>(fid % m_partCount));
    });
    return feature.release();
}

GIntBig TableLayer::GetFeatureCount(int force)
{
    if (m_poFilterGeom || m_poAttrQuery)
        return OGRLayer::GetFeatureCount(force);
    return rowsWithFeatures() * m_partCount;
}

TableSurvey TableLayer::startSurvey() const
{
    TableSurvey survey;
    survey.problems = fileProblems();
    return survey;
}

/// Adds what all positions show together.
void TableLayer::finish(TableSurvey &survey) const
{
    survey.findings = diagnose(survey.positions.all(), systems().facts());
    if (std::holds_alternative<LinkLayout>(facts().layout)) // many links meet at a hub
        std::erase_if(survey.findings,
                      [](const Finding &finding) { return finding.kind == FindingKind::Stacked; });
    survey.positions = {};
    for (auto finding = survey.findings.rbegin(); finding != survey.findings.rend(); ++finding) {
        if (finding->kind == FindingKind::Undeclared && systems().isUnreachable())
            finding->text = formatted("MESS_TAB_NO_SOURCE_SRS");
        survey.problems.addFirst({0, {}, false, finding->text});
    }
}

/// Reads all rows. If the file turns out to be damaged, returns false; `extent` and `found` then
/// cover the rows before the damage.
bool TableLayer::surveyRows(bool warns, OGREnvelope &extent, TableSurvey &found)
{
    const bool isWhole = guarded([&] {
        Walk walk = startWalk();
        while (walk.rows->advance()) {
            std::vector<RowProblem> problems = takeRow(walk);
            mergeInto(extent, walk.row);
            if (warns)
                m_source.warnings->warn(facts().table.sheet, problems);
            found.problems.add(std::move(problems));
            addPositions(found.positions, walk.row);
        }
    });
    finish(found);
    return isWhole;
}

OGRErr TableLayer::GetExtent(OGREnvelope *extent, int force)
{
    if (!m_extent.IsInit()) {
        OGREnvelope found;
        TableSurvey survey = startSurvey();
        if (!force || !surveyRows(true, found, survey))
            return OGRERR_FAILURE;
        m_extent = found;
        *m_source.survey = std::move(survey);
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
    problems.add(std::vector(facts().mappingProblems));
    problems.add(facts().joinProblems);
    if (const std::string &fault = installedVocabulary().ownFault; !fault.empty())
        problems.add({0, {}, false, fault});
    if (facts().table.encoding.isGuess)
        problems.add(
            {0, {}, false, formatted("MESS_TAB_ENCODING_GUESSED", {facts().table.encoding.name})});
    if (const std::string &absence = facts().table.header.absence; !absence.empty())
        problems.add({0, {}, false, absence});
    if (const uint64_t hidden = facts().table.hiddenRows; hidden > 0)
        problems.add(
            {0,
             {},
             false,
             formatted("MESS_TAB_HIDDEN_ROWS",
                       {std::to_string(hidden), std::to_string(facts().table.firstHiddenRow)})});
    for (const int64_t row : facts().table.totalRows)
        problems.add({row, {}, false, formatted("MESS_TAB_TOTAL_ROW")});
    std::vector<RowProblem> ofHeader;
    FieldCells(facts().table)
        .takeFaults(facts().table.header.row, facts().table.header.faults, ofHeader);
    problems.add(std::move(ofHeader));
    return problems;
}

/// The survey is known if all rows were read once; otherwise they are read now.
const TableSurvey &TableLayer::surveyed()
{
    std::optional<TableSurvey> &survey = *m_source.survey;
    if (!survey) {
        OGREnvelope extent;
        TableSurvey found = startSurvey();
        surveyRows(false, extent, found);
        survey = std::move(found);
    }
    return *survey;
}

std::optional<char **> TableLayer::ownMetadata(const char *domain)
{
    const auto isAsked = [domain](const char *own) { return domain && EQUAL(domain, own); };
    if (listsProblems() && isAsked(contract::report::RowsDomain)) {
        if (m_rowsItems.Count() == 0)
            guarded([this] { m_rowsItems = countRows(m_source); });
        return m_rowsItems.List();
    }
    if (listsProblems() && isAsked(metadata::ProblemsDomain)) {
        if (m_problemsItems.Count() == 0)
            m_problemsItems = problemItems(surveyed().problems);
        return m_problemsItems.List();
    }
    if (listsProblems() && isAsked(metadata::DoctorDomain)) {
        if (m_doctorItems.Count() == 0) {
            const std::vector<Finding> &findings = surveyed().findings;
            std::vector<Corrections> corrections(findings.size());
            guarded([&] { corrections = proposedCorrections(m_source, findings); });
            m_doctorItems = findingItems(findings, corrections);
        }
        return m_doctorItems.List();
    }
    if (isAsked(metadata::MappingDomain)) {
        if (m_mappingItems.empty())
            m_mappingItems.AddString(
                contract::writeMapping(recognisedMapping(*m_source.file)).c_str());
        return m_mappingItems.List();
    }
    if (!isAsked(metadata::RolesDomain))
        return std::nullopt;
    if (!m_rolesItems) {
        m_rolesItems = rolesMetadata();
        if (m_rolesItems->Count() > 0 && facts().secondRoles)
            addSecondRoles(*m_rolesItems, *facts().secondRoles);
        const std::string &mapping = m_source.file->options().mapping.path;
        if (!mapping.empty() && m_rolesItems->Count() > 0)
            m_rolesItems->SetNameValue(metadata::MappingItem, mapping.c_str());
    }
    return m_rolesItems->List();
}

char **TableLayer::GetMetadata(const char *domain)
{
    const auto own = ownMetadata(domain);
    return own ? *own : OGRLayer::GetMetadata(domain);
}

const char *TableLayer::GetMetadataItem(const char *name, const char *domain)
{
    const auto own = ownMetadata(domain);
    return own ? CSLFetchNameValue(*own, name) : OGRLayer::GetMetadataItem(name, domain);
}

char **TableLayer::GetMetadataDomainList()
{
    char **list = OGRLayer::GetMetadataDomainList();
    const char *problems = listsProblems() ? metadata::ProblemsDomain : nullptr;
    const char *roles =
        ownMetadata(metadata::RolesDomain).value_or(nullptr) ? metadata::RolesDomain : nullptr;
    if (problems)
        list = BuildMetadataDomainList(list, FALSE, problems, metadata::DoctorDomain,
                                       contract::report::RowsDomain, nullptr);
    return roles ? BuildMetadataDomainList(list, FALSE, roles, nullptr) : list;
}

} // namespace vlt::driver
