#pragma once

#include <QString>

namespace vlt::srs {

/// One choice of a coordinate system.
struct SrsEntry
{
    QString alias;              ///< short label; may be empty
    QString name;               ///< shown in place of the alias where not empty
    QString code;               ///< "EPSG:4326", or the definition of a user-defined system
    bool isUserDefined = false; ///< from the list that the user keeps by hand

    friend bool operator==(const SrsEntry &, const SrsEntry &) = default;
};

/// The entry as one line: its name, else its alias, then " , " and the code, as far as there are
/// any. Without a code, and with one of the labels missing, nothing.
QString displayText(const SrsEntry &entry);

/// The entry as a row of a chooser: a user-defined system under its alias alone, every other one as
/// displayText().
QString rowText(const SrsEntry &entry);

} // namespace vlt::srs
