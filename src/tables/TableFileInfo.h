#pragma once

#include "geodata/LayerInfo.h"
#include "geodata/SystemCandidates.h"
#include "platform/Result.h"
#include "tables/TableReading.h"
#include "tables/TableSystems.h"
#include "wizard/project/ProjectContext.h"

#include <QStringList>

#include <optional>

namespace vlt::tables {

/// Why a table in metres that declares no system is taken to have one.
enum class AssumedFrom {
    Nothing,   ///< no system is assumed
    Terrain,   ///< it is that of the project's terrain
    Name,      ///< the table names it in words
    Project,   ///< it is that of the project
    Positions, ///< they lie in the area of use of no other system that was tried
};

/// Properties of the table of sites or links that the user picked.
struct TableFileInfo
{
    TableReading reading; ///< options of the read
    QString filePath;     ///< as picked
    QString layerName;
    QString nameField;         ///< column with the names of the sites
    bool hasNameField = false; ///< whether the table has it, in upper or lower case
    QString description;       ///< translated text for the file label
    QString format;            ///< tool that exported the file, as the driver recognised it
    QString unit;              ///< "METERS", "DMS", else decimal degrees
    QString epsg;              ///< code that the file declares; "0" or empty for none
    QString encoding;          ///< of a text file; empty for others
    QString shape;             ///< of the table, in English, for language::readerText()
    QList<geodata::ColumnRole> roles;
    geodata::SecondColumns second;                  ///< of the table that completes this one
    qint64 rowCount = 0;                            ///< sites or links
    geodata::SystemPair systems;                    ///< suggested systems for the choosers
    AssumedFrom assumedFrom = AssumedFrom::Nothing; ///< reason of systems.source
    /// Whether the coordinates are metres and neither the table nor the user declares a system.
    bool isUndeclared = false;
    QList<geodata::SystemCandidate> candidates; ///< of such a table, best first
    QStringList projectSystems; ///< those of the project and of its terrain, if known
    std::optional<geodata::SrsBounds> terrainArea; ///< area of the project's terrain
};

/// A table with the names of its first layer's fields.
struct TableFile
{
    TableFileInfo info; ///< without the column that names a site
    QStringList fields;
};

/// A kind of tables, and the errors for tables that cannot be used.
struct TableFileType
{
    contract::TableKind kind;
    Error unreadable;
    Error empty;
};

/// Opens `path` as a table of the kind and suggests coordinate systems for it in the project.
///
/// @par Errors  those of the kind: with the driver's reason, or with the path if the table opened
///              but has no rows.
Result<TableFile> readTableFile(const TableFileType &type, const QString &path,
                                const project::ProjectContext &project,
                                const TableReading &reading);

/// The line about format, coordinates and unit, in the chosen language. The values appear only in a
/// dictionary's text; the built-in English text has no placeholders for them.
QString describeTableFile(const QString &format, const QString &unit);

} // namespace vlt::tables
