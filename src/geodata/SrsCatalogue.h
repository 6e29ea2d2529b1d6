#pragma once

#include "geodata/SrsBounds.h"
#include "platform/Result.h"

#include <QList>
#include <QString>

#include <optional>

namespace vlt::geodata {

enum class SrsKind {
    Geographic2D,
    Geographic3D,
    Projected,
    Compound, ///< a horizontal system together with heights
    Other     ///< for example, systems of bodies that no spheroid describes
};

/// A coordinate system as the PROJ database lists it.
struct SrsRecord
{
    QString authority; ///< "EPSG"
    QString code;      ///< "2154"; not always digits
    QString name;
    SrsKind kind = SrsKind::Other;
    bool isDeprecated = false;
    QString area; ///< area of use, in English; several areas are separated by "; "
    std::optional<SrsBounds> bounds;
    QString projectionMethod; ///< of projected systems; may be empty

    /// Authority and code: "EPSG:2154".
    QString key() const { return authority + QLatin1Char(':') + code; }
};

/// Every coordinate system of the PROJ database that can give points a position on a map, each
/// once. EPSG's systems come first, then the other authorities by name; the codes of an authority
/// are in numerical order. Vertical and geocentric systems are left out. Takes about 0.1 s; may run
/// on any thread.
///
/// @par Errors   the database is missing; the library's reason as detail.
Result<QList<SrsRecord>> readSrsCatalogue();

/// The whole definition (WKT 2, several lines) of a code or of any other text that defines a
/// system; empty if there is none.
QString srsDefinitionText(const QString &codeOrDefinition);

} // namespace vlt::geodata
