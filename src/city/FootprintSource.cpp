#include "city/FootprintSource.h"

#include "contract/BadLayer.h"
#include "localfiles/FeatureReading.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/OpenLocal.h"

#include <cpl_error.h>
#include <cpl_string.h>

#include <numeric>

namespace vlt::city {

using contract::BadLayer;

namespace {

/// The fields that a condition names, or all of them where the library cannot list them.
std::vector<int> fieldsIn(OGRLayer &layer, const std::string &where)
{
    std::vector<int> fields;
    OGRFeatureQuery query;
    if (query.Compile(&layer, where.c_str()) == OGRERR_NONE) {
        const CPLStringList names(query.GetUsedFields());
        for (int i = 0; i < names.size(); ++i)
            fields.push_back(layer.GetLayerDefn()->GetFieldIndex(names[i]));
    } else {
        fields.resize(static_cast<std::size_t>(layer.GetLayerDefn()->GetFieldCount()));
        std::iota(fields.begin(), fields.end(), 0);
    }
    return fields;
}

} // namespace

GDALDatasetUniquePtr openFootprints(const std::string &file)
{
    if (!localfiles::isLocalDataset(file))
        throw BadLayer("MESS_SCENE_NO_FOOTPRINTS", {file});
    CPLErrorReset();
    GDALDatasetUniquePtr dataset = localfiles::openVector(file);
    if (!dataset)
        throw BadLayer("MESS_SCENE_BAD_FOOTPRINTS", {file, CPLGetLastErrorMsg()});
    return dataset;
}

OGRLayer &findLayer(GDALDataset &dataset, const std::string &name)
{
    OGRLayer *found = nullptr;
    for (int i = 0; i < dataset.GetLayerCount(); ++i) {
        OGRLayer *layer = dataset.GetLayer(i);
        if (layer && (name.empty() || name == layer->GetName()))
            return *layer;
        if (layer && !found && EQUAL(name.c_str(), layer->GetName()))
            found = layer;
    }
    if (!found)
        throw BadLayer("MESS_SCENE_NO_LAYER", {name});
    return *found;
}

int findField(OGRLayer &layer, const std::string &name)
{
    if (name.empty())
        return -1;
    const OGRFeatureDefn &definition = *layer.GetLayerDefn();
    int found = -1;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const char *known = definition.GetFieldDefn(i)->GetNameRef();
        if (name == known || (found < 0 && EQUAL(known, name.c_str())))
            found = i;
        if (name == known)
            break;
    }
    if (found < 0)
        throw BadLayer("MESS_SCENE_NO_FIELD", {name});
    const OGRFieldType type = definition.GetFieldDefn(found)->GetType();
    if (type != OFTInteger && type != OFTInteger64 && type != OFTReal && type != OFTString)
        throw BadLayer("MESS_SCENE_NO_NUMBERS", {name});
    return found;
}

void select(OGRLayer &layer, const std::string &where, std::vector<int> fields, Shapes shapes)
{
    if (!where.empty()) {
        const std::vector<int> named = fieldsIn(layer, where);
        fields.insert(fields.end(), named.begin(), named.end());
    }
    localfiles::readOnlyFields(layer, fields, shapes == Shapes::Read);
    CPLErrorReset();
    if (!where.empty() && layer.SetAttributeFilter(where.c_str()) != OGRERR_NONE)
        throw BadLayer("MESS_SCENE_BAD_FILTER", {where, CPLGetLastErrorMsg()});
}

} // namespace vlt::city
