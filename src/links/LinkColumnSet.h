#pragma once

#include <QString>
#include <QStringList>

namespace vlt::links {

/// The columns of one end of a link; each empty where none was recognised.
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
/// empty where nothing was recognised.
struct LinkColumnSet
{
    QString name;
    QString band;   ///< frequency band
    QString length; ///< path length
    LinkEndColumns tx;
    LinkEndColumns rx;
    QString frequencyUnit; ///< Hz, KHz, MHz, GHz or THz, as the name of the band column has it
    QString lengthUnit;    ///< m, km, feet or miles, as the name of the length column has it

    bool operator==(const LinkColumnSet &) const = default;
};

/// Recognises columns by their whole name, without regard to case; the first match is kept, and a
/// field may fill several members. Units are looked for in the two names, with regard to case.
LinkColumnSet recogniseLinkColumns(const QStringList &fieldNames);

/// The same for the fields of layer 0 of a "link:" connection.
///
/// @param projectDirectory  what a relative path in it is relative to; empty: the working directory
/// @return                  an empty set where the table cannot be opened
LinkColumnSet recogniseLinkColumns(const QString &connection, const QString &projectDirectory);

} // namespace vlt::links
