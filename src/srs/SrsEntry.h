#pragma once

#include <QString>

namespace vlt::srs {

/// A coordinate system that can be chosen.
struct SrsEntry
{
    QString alias;              ///< short label; may be empty
    QString name;               ///< shown instead of the alias, unless empty
    QString code;               ///< "EPSG:4326", or the definition of a user-defined system
    bool isUserDefined = false; ///< from the list of the user's own systems

    friend bool operator==(const SrsEntry &, const SrsEntry &) = default;
};

/// The entry as one line: its name or else its alias, then " , " and the code, as far as they
/// exist. Empty if the code and one of the labels are missing.
QString displayText(const SrsEntry &entry);

/// The entry as a row of a chooser: only the alias for a user-defined system, displayText() for
/// others.
QString rowText(const SrsEntry &entry);

} // namespace vlt::srs
