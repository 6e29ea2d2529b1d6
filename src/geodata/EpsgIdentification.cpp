#include "geodata/EpsgIdentification.h"

#include <cpl_conv.h>

namespace vlt::geodata {

namespace {

/// A match of this confidence or more describes the same system; at most its name differs.
constexpr int EquivalentConfidence = 90;

QString epsgCode(const OGRSpatialReference &system)
{
    const char *authority = system.GetAuthorityName(nullptr);
    const char *code = system.GetAuthorityCode(nullptr);
    return authority && code && qstricmp(authority, "EPSG") == 0 ? QString::fromLatin1(code)
                                                                 : QString();
}

/// Compares the definition with all of EPSG's. Most systems without a code, as in .prj files beside
/// rasters, are found only by this comparison.
QString bestMatch(OGRSpatialReference &system)
{
    int count = 0;
    int *confidences = nullptr;
    OGRSpatialReferenceH *matches =
        OSRFindMatches(OGRSpatialReference::ToHandle(&system), nullptr, &count, &confidences);
    QString code;
    for (int i = 0; i < count && code.isEmpty(); ++i) {
        if (confidences[i] >= EquivalentConfidence)
            code = epsgCode(*OGRSpatialReference::FromHandle(matches[i]));
    }
    OSRFreeSRSArray(matches);
    CPLFree(confidences);
    return code;
}

} // namespace

QString identifiedEpsgCode(const OGRSpatialReference &system)
{
    OGRSpatialReference identified(system);
    identified.AutoIdentifyEPSG();
    const QString code = epsgCode(identified);
    return code.isEmpty() ? bestMatch(identified) : code;
}

} // namespace vlt::geodata
