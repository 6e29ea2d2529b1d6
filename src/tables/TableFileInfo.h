#pragma once

#include "platform/Result.h"
#include "tables/TableReading.h"
#include "tables/TableSystems.h"
#include "wizard/project/ProjectContext.h"

#include <QStringList>

#include <optional>

namespace vlt::tables {

/// What a page knows of the table of sites or links that the user picked.
struct TableFileInfo
{
    TableReading reading; ///< how it was read
    QString filePath;     ///< as picked
    QString layerName;
    QString nameField;           ///< column whose value names a site
    bool hasNameField = false;   ///< whether the table has it, in any case of letters
    QString description;         ///< translated text for the file label
    QString format;              ///< which tool exported the file, as the file says
    QString unit;                ///< "METERS", "DMS", else decimal degrees
    QString epsg;                ///< code that the file declares; "0" or empty for none
    QString encoding;            ///< of a text file; empty for others
    qint64 rowCount = 0;         ///< sites or links
    geodata::SystemPair systems; ///< to give to the choosers
    QStringList projectSystems;  ///< of the project and its terrain, as far as they are known
    std::optional<geodata::SrsBounds> terrainArea; ///< where the project's terrain lies
};

/// A table with the names of its first layer's fields.
struct TableFile
{
    TableFileInfo info; ///< but for the column that names a site
    QStringList fields;
};

/// A kind of tables, and the errors of those that cannot be used.
struct TableFileType
{
    contract::TableKind kind;
    Error unreadable;
    Error empty;
};

/// Opens `path` as a table of the kind and tells which systems go with it in the project.
///
/// @par Errors  those of the kind: with the driver's reason, or with the path where the table
///              opened but has no rows.
Result<TableFile> readTableFile(const TableFileType &type, const QString &path,
                                const project::ProjectContext &project,
                                const TableReading &reading);

/// The line about format, coordinates and unit, in the chosen language. Only a dictionary's text
/// takes the values in; the built-in English one has no places for them.
QString describeTableFile(const QString &format, const QString &unit);

} // namespace vlt::tables
