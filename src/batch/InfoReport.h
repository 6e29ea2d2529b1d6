#pragma once

#include "geodata/LayerProblems.h"
#include "tables/ColumnDescription.h"
#include "tables/TableFileInfo.h"

#include <QJsonObject>

namespace vlt::batch {

/// Something that only one kind of table has to tell.
struct InfoEntry
{
    QString key;   ///< in JSON
    QString label; ///< in the chosen language
    QString value;
};

/// What "vltlayers info" tells of a table.
struct InfoReport
{
    tables::TableFileInfo file;
    QString countLabel;  ///< of the number of rows, in the chosen language
    QString systemLabel; ///< of the table's coordinate system
    QList<InfoEntry> further;
    QList<tables::ColumnDescription> columns; ///< recognised ones, for people
    QJsonObject columnNames;                  ///< the same, for programs
    geodata::LayerProblems problems;
};

/// One problem in one line, row and column first.
QString problemText(const Problem &problem);

/// For people: labelled lines in the chosen language.
QString reportText(const InfoReport &report);

/// For programs.
QJsonObject reportJson(const InfoReport &report);

} // namespace vlt::batch
