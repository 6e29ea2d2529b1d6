#pragma once

#include "contract/ColumnMapping.h"
#include "contract/TableKind.h"
#include "geodata/LayerInfo.h"
#include "geodata/TableExcerpt.h"

#include <QList>
#include <QStringList>

namespace vlt::tables {

/// How a table was understood, and what its user states about it.
struct UnderstoodTable
{
    contract::TableKind kind = contract::TableKind::Sites;
    QString shape; ///< in English, for language::readerText(); may be empty
    QList<geodata::ColumnRole> roles;
    geodata::TableExcerpt excerpt;
    contract::ColumnMapping mapping;
    geodata::SecondColumns second = {};
};

/// A column that has a role; without a name if one is missing in a list of columns.
struct RoleColumn
{
    QString name;
    QString evidence;    ///< in English, for language::readerText()
    QStringList samples; ///< up to three different values
};

/// A role and the columns that have it.
struct RoleEntry
{
    QString role;
    QString text;              ///< in the chosen language
    QList<RoleColumn> columns; ///< in the order of the transmitters or of the parts; may be empty
    QStringList partNames;     ///< of the columns that it may have; empty if it has one at most
    bool isStated = false;     ///< by the mapping

    bool isFound() const { return !columns.isEmpty(); }
};

/// All roles that the columns of a table may have: first those that a column has.
QList<RoleEntry> roleEntries(const UnderstoodTable &table);

/// The roles of each column of the excerpt in the chosen language, by the column's name.
QHash<QString, QStringList> rolesByColumn(const UnderstoodTable &table);

/// The mapping after the user has chosen a column for a role.
///
/// @param part    of the role's list of columns; -1 for the role as a whole
/// @param column  its name; empty for none
contract::ColumnMapping withColumn(const contract::ColumnMapping &mapping, const RoleEntry &entry,
                                   int part, const QString &column);

/// The mapping that leaves a role to be recognised.
contract::ColumnMapping withRecognised(const contract::ColumnMapping &mapping,
                                       const RoleEntry &entry);

/// The mapping after the user has chosen a sheet or the rows of the header. Nothing of what is
/// stated about columns holds any more.
contract::ColumnMapping withSheet(const contract::ColumnMapping &mapping, const QString &sheet);
contract::ColumnMapping withHeader(const contract::ColumnMapping &mapping, int firstRow,
                                   int rowCount);

} // namespace vlt::tables
