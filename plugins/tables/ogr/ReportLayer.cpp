#include "plugins/tables/ogr/ReportLayer.h"

#include "contract/TableReport.h"
#include "plugins/tables/ogr/Guarded.h"
#include "plugins/tables/table/DelimitedLine.h"

#include <cpl_string.h>

namespace vlt::driver {

namespace {

namespace report = contract::report;

constexpr char DelimiterOfWorkbooks = ',';

const char *fateWord(Fate fate)
{
    return fate == Fate::Used     ? report::Used
           : fate == Fate::Merged ? report::Merged
                                  : report::LeftOut;
}

/// Whether the user can correct the row.
bool isReject(const ReportedRow &row)
{
    return !row.isSecond && row.kind == RowKind::Data && row.fate == Fate::LeftOut;
}

void addItems(CPLStringList &items, const std::string &prefix, const RowCounts &counts)
{
    const auto add = [&](const char *item, int64_t count) {
        items.SetNameValue((prefix + item).c_str(), std::to_string(count).c_str());
    };
    add(report::RowsItem, counts.rows());
    add(report::UsedItem, counts.used);
    add(report::MergedItem, counts.merged);
    add(report::LeftOutItem, counts.leftOut);
}

} // namespace

ReportLayer::ReportLayer(TableSource source, const char *name)
    : m_source(std::move(source))
    , m_definition(new OGRFeatureDefn(name))
{
    m_definition->Reference();
    m_definition->SetGeomType(wkbNone);
    SetDescription(m_definition->GetName());
}

ReportLayer::~ReportLayer()
{
    m_definition->Release();
}

void ReportLayer::defineField(const char *name, OGRFieldType type)
{
    OGRFieldDefn definition(name, type);
    m_definition->AddFieldDefn(&definition);
}

void ReportLayer::ResetReading()
{
    m_report.reset();
    m_nextFid = 0;
    m_ended = false;
}

std::unique_ptr<OGRFeature> ReportLayer::readFeature()
{
    if (!m_report) {
        m_report.emplace(m_source);
        if (auto first = firstFeature())
            return first;
    }
    while (m_report->advance()) {
        if (auto feature = featureOf(*m_report))
            return feature;
    }
    return nullptr;
}

OGRFeature *ReportLayer::GetNextFeature()
{
    while (!m_ended) {
        std::unique_ptr<OGRFeature> feature;
        guarded(GetDescription(), [&] { feature = readFeature(); });
        m_ended = !feature;
        if (m_ended)
            break;
        feature->SetFID(++m_nextFid);
        if (!m_poAttrQuery || m_poAttrQuery->Evaluate(feature.get()))
            return feature.release();
    }
    return nullptr;
}

int ReportLayer::TestCapability(const char *capability)
{
    return EQUAL(capability, OLCStringsAsUTF8);
}

FatesLayer::FatesLayer(const TableSource &source) : ReportLayer(source, report::Statement)
{
    defineField(report::Table, OFTString);
    defineField(report::Row, OFTInteger64);
    defineField(report::Fate, OFTString);
    defineField(report::Site, OFTString);
    defineField(report::FirstRow, OFTInteger64);
    defineField(report::Reasons, OFTStringList);
    defineField(report::Columns, OFTStringList);
}

/// The rows are counted already.
GIntBig FatesLayer::GetFeatureCount(int force)
{
    if (m_poAttrQuery)
        return ReportLayer::GetFeatureCount(force);
    if (!m_count) {
        GIntBig count = static_cast<GIntBig>(source().facts().table.rowCountWithAll());
        guarded(GetDescription(), [&] {
            if (const auto second = source().file->secondTable())
                count += static_cast<GIntBig>(second->profile().rowCountWithAll());
        });
        m_count = count;
    }
    return *m_count;
}

std::unique_ptr<OGRFeature> FatesLayer::featureOf(RowReport &rows)
{
    const ReportedRow &row = rows.row();
    if (row.kind == RowKind::Head)
        return nullptr;
    auto feature = std::make_unique<OGRFeature>(GetLayerDefn());
    const std::string &table = row.isSecond ? rows.second()->name() : source().facts().table.sheet;
    feature->SetField(report::Table, table.c_str());
    feature->SetField(report::Row, static_cast<GIntBig>(row.number));
    feature->SetField(report::Fate, fateWord(row.fate));
    feature->SetField(report::Site, row.site.c_str());
    if (row.firstRow > 0)
        feature->SetField(report::FirstRow, static_cast<GIntBig>(row.firstRow));
    CPLStringList reasons;
    CPLStringList columns;
    for (const RowProblem &reason : row.reasons) {
        reasons.AddString(reason.text.c_str());
        columns.AddString(reason.column.c_str());
    }
    if (!row.reasons.empty()) {
        feature->SetField(report::Reasons, reasons.List());
        feature->SetField(report::Columns, columns.List());
    }
    return feature;
}

RejectsLayer::RejectsLayer(const TableSource &source)
    : ReportLayer(source, report::RejectsStatement)
    , m_delimiter(source.file->delimiter())
{
    defineField(report::Row, OFTInteger64);
    defineField(report::Line, OFTString);
    if (m_delimiter == 0)
        m_delimiter = DelimiterOfWorkbooks;
    else
        SetMetadataItem(report::LineEncoding, source.facts().table.encoding.name.c_str());
}

std::unique_ptr<OGRFeature> RejectsLayer::lineFeature(int64_t row, const std::string &line)
{
    auto feature = std::make_unique<OGRFeature>(GetLayerDefn());
    feature->SetField(report::Row, static_cast<GIntBig>(row));
    feature->SetField(report::Line, line.c_str());
    return feature;
}

/// A table without a header gets one, because too few of its rows may be left to recognise the
/// columns by their values.
std::unique_ptr<OGRFeature> RejectsLayer::firstFeature()
{
    const TableProfile &table = source().facts().table;
    if (!table.header.rows.empty())
        return nullptr;
    Row names;
    for (const Field &field : table.fields)
        names.add({field.column, Cell::Kind::Text, field.name});
    return lineFeature(0, delimitedLine(names, m_delimiter, table.lastColumn));
}

std::unique_ptr<OGRFeature> RejectsLayer::featureOf(RowReport &rows)
{
    const ReportedRow &row = rows.row();
    const bool isHead = row.kind == RowKind::Head && !row.isSecond;
    if (!isHead && !isReject(row))
        return nullptr;
    return lineFeature(row.number,
                       delimitedLine(rows.cells(), m_delimiter, source().facts().table.lastColumn));
}

CPLStringList countRows(const TableSource &source)
{
    RowCounts counts;
    RowCounts ofSecond;
    RowReport rows(source);
    while (rows.advance()) {
        if (rows.row().kind != RowKind::Head)
            (rows.row().isSecond ? ofSecond : counts).add(rows.row().fate);
    }
    CPLStringList items;
    addItems(items, {}, counts);
    if (rows.second()) {
        addItems(items, report::SecondPrefix, ofSecond);
        items.SetNameValue((std::string(report::SecondPrefix) + report::NameItem).c_str(),
                           rows.second()->name().c_str());
    }
    return items;
}

} // namespace vlt::driver
