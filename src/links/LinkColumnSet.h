#pragma once

#include <QString>
#include <QStringList>

namespace vlt::links {

/// The columns of one end of a link; each is empty if none was recognised.
struct LinkEndColumns
{
    QString identifier;
    QString longitude;
    QString latitude;
    QString height;
    QString frequency;
    QString azimuth;
    QString tilt;
    QString dx;
    QString dy;

    bool operator==(const LinkEndColumns &) const = default;
};

/// The columns of a link table that the information page shows, and the units of two of them; each
/// is empty if none was recognised.
struct LinkColumnSet
{
    QString name;
    QString band;   ///< frequency band
    QString length; ///< path length
    LinkEndColumns tx;
    LinkEndColumns rx;
    QString frequencyUnit; ///< Hz, KHz, MHz, GHz or THz, from the name of the band column
    QString lengthUnit;    ///< m, km, feet or miles, from the name of the length column

    bool operator==(const LinkColumnSet &) const = default;
};

/// Recognises columns by their whole name, in upper or lower case. The first match is kept, and a
/// field may fill several members. Units in the two names must have the exact case.
LinkColumnSet recogniseLinkColumns(const QStringList &fieldNames);

/// The same for the fields of layer 0 of a "link:" connection.
///
/// @param projectDirectory  base of a relative path in the connection; empty for the working
///                          directory
/// @return                  an empty set if the table cannot be opened
LinkColumnSet recogniseLinkColumns(const QString &connection, const QString &projectDirectory);

} // namespace vlt::links
