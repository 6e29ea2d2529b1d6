#pragma once

#include "geodata/LayerInfo.h"

#include <QList>
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
    QString frequencyUnit; ///< from the name of the band column: Hz, KHz, MHz, GHz or THz
    QString lengthUnit;    ///< from the name of the length column: m, km, feet or miles

    bool operator==(const LinkColumnSet &) const = default;
};

/// Recognises columns by their whole name, in upper or lower case. The first match is kept, and a
/// field may fill several members. Units in the two names must have the exact case.
///
/// A member that no name fills gets the column that has its role, and the unit that such a name
/// has as a word, as it is written. A coordinate in several columns fills no member.
LinkColumnSet recogniseLinkColumns(const QStringList &fieldNames,
                                   const QList<geodata::ColumnRole> &roles = {});

/// The same for the fields and roles of layer 0 of a "link:" connection.
///
/// @param projectDirectory  base of a relative path in the connection; empty for the working
///                          directory
/// @return                  an empty set if the table cannot be opened
LinkColumnSet recogniseLinkColumns(const QString &connection, const QString &projectDirectory);

} // namespace vlt::links
