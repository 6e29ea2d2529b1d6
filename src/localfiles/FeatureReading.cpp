#include "localfiles/FeatureReading.h"

#include "contract/BadLayer.h"

#include <cpl_error.h>

namespace vlt::localfiles {

using contract::BadLayer;
using contract::LibraryWords;

std::vector<std::string> fieldNamesOf(OGRLayer &layer)
{
    const OGRFeatureDefn &definition = *layer.GetLayerDefn();
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(definition.GetFieldCount()));
    for (int i = 0; i < definition.GetFieldCount(); ++i)
        names.emplace_back(definition.GetFieldDefn(i)->GetNameRef());
    return names;
}

void readOnlyFields(OGRLayer &layer, const std::vector<int> &fields, bool withShapes)
{
    const std::vector<std::string> names = fieldNamesOf(layer);
    std::vector<bool> isUsed(names.size());
    for (const int field : fields) {
        if (field >= 0)
            isUsed[static_cast<std::size_t>(field)] = true;
    }
    std::vector<const char *> ignored;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!isUsed[i])
            ignored.push_back(names[i].c_str());
    }
    if (!withShapes)
        ignored.push_back("OGR_GEOMETRY");
    ignored.push_back(nullptr);
    layer.SetIgnoredFields(ignored.data());
}

OGRFeatureUniquePtr nextFeature(OGRLayer &layer)
{
    CPLErrorReset(); // clears errors of rows without a position, which are not failures
    OGRFeatureUniquePtr feature(layer.GetNextFeature());
    if (!feature && CPLGetLastErrorType() == CE_Failure)
        throw BadLayer(LibraryWords{CPLGetLastErrorMsg()});
    return feature;
}

} // namespace vlt::localfiles
