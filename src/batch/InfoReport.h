#pragma once

#include "geodata/LayerProblems.h"
#include "geodata/TableReport.h"
#include "tables/ColumnDescription.h"
#include "tables/TableFileInfo.h"

#include <QJsonObject>

namespace vlt::batch {

/// A property that only one kind of table has.
struct InfoEntry
{
    QString key;   ///< in JSON
    QString label; ///< in the chosen language
    QString value;
};

/// The report of "vltlayers info" about a table.
struct InfoReport
{
    tables::TableFileInfo file;
    QString countLabel;  ///< label of the number of rows, in the chosen language
    QString systemLabel; ///< label of the table's coordinate system
    QList<InfoEntry> further;
    QList<tables::ColumnDescription> columns; ///< recognised columns, for the text
    QJsonObject columnNames;                  ///< the same, for JSON
    geodata::LayerProblems problems;
    geodata::TableRowCounts rows;
    QString connection; ///< by which the rows were read
    QString mapping;    ///< file to which the mapping was written; empty for none
};

/// A problem as one line, with row and column first.
QString problemText(const Problem &problem);

/// The report as text: lines with labels in the chosen language.
QString reportText(const InfoReport &report);

/// The report as JSON.
QJsonObject reportJson(const InfoReport &report);

} // namespace vlt::batch
