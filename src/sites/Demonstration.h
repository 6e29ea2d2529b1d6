#pragma once

#include "sites/SiteRepresentation.h"

#include <QStringList>

namespace vlt::sites {

/// Objects that show a representation without a table, as items "key=value" of a parametric query.
struct Demonstration
{
    const char *object;      ///< kind of object, see contract/ParametricKeys.h
    QStringList pylons;      ///< pylons, their antennas after each
    QStringList others = {}; ///< other objects and their options
};

/// An item with the words of its value.
QString queryItem(const char *key, const QStringList &words);

/// A pylon of the default height at a position in metres.
QString pylonItem(const SiteRepresentation &representation, int xM = 0, int yM = 0);

/// The name by which the scene library loads a demonstration.
QString demonstrationUrl(const Demonstration &shown, const SiteRepresentation &representation,
                         const PylonType &type, const QString &installDir);

} // namespace vlt::sites
