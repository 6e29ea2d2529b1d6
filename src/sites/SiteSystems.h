#pragma once

#include <QString>

namespace vlt::sites {

/// What is known about coordinate systems when a site file is opened; each may be empty.
struct KnownSystems
{
    QString unit;        ///< of the file: "METERS", "DMS", else decimal degrees
    QString fileEpsg;    ///< code that the file declares; "0" stands for none as well
    QString projectEpsg; ///< reference projection of the target project
    QString terrainEpsg; ///< code of the project's terrain
};

/// Systems to offer; an empty one leaves the user's choice as it is.
struct SiteSystems
{
    QString source;
    QString target;
};

/// Source: the file's own code, else WGS 84 for degrees, else the terrain's. Target: the project's,
/// else the terrain's, else WGS 84 for degrees, else the file's own.
SiteSystems chooseSystems(const KnownSystems &known);

/// A coordinate system as layers carry it: the number of an "EPSG:2154", in any case of letters and
/// with blanks around; any other text, such as a WKT or "ESRI:102100", as it stands.
QString epsgText(const QString &code);

} // namespace vlt::sites
