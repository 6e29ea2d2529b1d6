#pragma once

#include <QString>
#include <QStringList>

namespace vlt::sites {

/// The columns of a site table that the information page shows. A text is empty if no column was
/// recognised, a list has only the recognised columns. The lists are in field order and independent
/// of each other.
struct SiteColumnSet
{
    QString name;
    QString x;
    QString y;
    QString terrainHeight;
    QStringList sectorIds;
    QStringList heights;
    QStringList azimuths;
    QStringList tilts;

    bool operator==(const SiteColumnSet &) const = default;
};

/// The columns that contract::recogniseColumns() finds.
SiteColumnSet recogniseSiteColumns(const QStringList &fieldNames);

/// The same for the fields of a table connection: layer 0, or layer 1 (the link ends) of a "link:"
/// connection.
///
/// @param connection        "site:" or "link:", options and path, as in the layer file
/// @param projectDirectory  base of a relative path in the connection; empty for the working
///                          directory
/// @return                  an empty set if the table cannot be opened
SiteColumnSet recogniseSiteColumns(const QString &connection, const QString &projectDirectory);

} // namespace vlt::sites
