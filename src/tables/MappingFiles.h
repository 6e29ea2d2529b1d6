#pragma once

#include "contract/ColumnMapping.h"
#include "platform/Result.h"

#include <QString>

#include <optional>

/// The files with what the user states about the columns of a table. A change is kept in the user's
/// folder of data, so that nothing is written beside a table unasked; it goes before the file
/// beside the table until it is saved there.
namespace vlt::tables {

/// The mapping file of a table.
struct MappingFile
{
    enum class Place { None, BesideTable, OfUser };

    Place place = Place::None;
    QString path; ///< empty for Place::None
    contract::ColumnMapping mapping;
    QString refusal; ///< why the file is not used, in English for language::readerText()
};

/// The mapping file that is in use for a table.
MappingFile findMapping(const QString &tablePath);

/// The path for TableReading::columns: that of the user's file for the table; empty without one.
QString mappingOption(const QString &tablePath);

/// Keeps a changed mapping in the user's file for the table. If nothing is stated and there is no
/// file beside the table, the user's file is removed.
///
/// @par Errors   those of platform::writeWhole().
Result<Done> keepMapping(const QString &tablePath, const contract::ColumnMapping &mapping);

/// Moves a mapping from the user's file to the one beside the table. A mapping that states nothing
/// removes both.
///
/// @par Errors   those of platform::writeWhole(); the user's file then stays.
Result<Done> saveBesideTable(const QString &tablePath, const contract::ColumnMapping &mapping);

/// Whether a mapping states nothing but the kind of table.
bool statesNothing(const contract::ColumnMapping &mapping);

} // namespace vlt::tables
