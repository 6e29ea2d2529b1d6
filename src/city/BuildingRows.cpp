#include "city/BuildingRows.h"

#include "city/FootprintSource.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"
#include "localfiles/FeatureReading.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"

#include <algorithm>

namespace vlt::city {

namespace {

using contract::BadLayer;

constexpr std::size_t FeaturesPerReport = 2000;

int findIdField(OGRLayer &layer, const std::string &name)
{
    const OGRFeatureDefn &definition = *layer.GetLayerDefn();
    if (!name.empty()) {
        const int field = definition.GetFieldIndex(name.c_str());
        if (field < 0)
            throw BadLayer("MESS_SCENE_NO_FIELD", {name});
        return field;
    }
    for (const char *known : {"ID", "osm_id", "cleabs", "gml_id"}) {
        if (const int field = definition.GetFieldIndex(known); field >= 0)
            return field;
    }
    return -1;
}

/// Makes rows of features, which come in the order in which they were read.
class RowMaker
{
public:
    explicit RowMaker(const CityValues &read) : m_read(read) {}

    BuildingRow rowOf(const OGRFeature &feature, std::size_t index, int idField)
    {
        BuildingRow row;
        row.index = index;
        row.fid = feature.GetFID();
        if (idField >= 0 && feature.IsFieldSetAndNotNull(idField))
            row.id = const_cast<OGRFeature &>(feature).GetFieldAsString(idField);
        row.shape = feature.GetGeometryRef();
        row.leftOut = m_read.city.fates[index];
        if (!row.leftOut)
            addBuildings(row, index);
        return row;
    }

private:
    /// The parts of a feature follow each other, in the order of the features.
    void addBuildings(BuildingRow &row, std::size_t index)
    {
        const Footprints &footprints = m_read.city.footprints;
        const auto &buildings = footprints.buildings;
        const std::size_t first = m_next;
        for (; m_next < buildings.size() &&
               footprints.features[buildings[m_next].feature].row == index;
             ++m_next) {
            const double baseM = m_read.city.baseM[m_next];
            if (m_next > first && baseM >= row.baseM)
                continue;
            row.baseM = baseM;
            row.heightM = buildings[m_next].heightM;
            row.bottomM = buildings[m_next].bottomM;
        }
        const std::uint32_t number = m_next > first ? buildings[first].feature : 0;
        if (m_next == first || footprints.features[number].id != row.fid)
            throw BadLayer("MESS_SCENE_CHANGED_FOOTPRINTS");
        row.source = footprints.features[number].source;
        row.value = m_read.hasRaster ? &m_read.values[number] : nullptr;
    }

    const CityValues &m_read;
    std::size_t m_next = 0; ///< in the buildings
};

} // namespace

void forEachRow(const contract::BuildingDocument &document,
                const std::vector<std::string> &directories, const CityValues &read,
                const std::string &idField, const std::function<bool(const BuildingRow &)> &use,
                const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const contract::BuildingFootprints &source = document.footprints;
    const GDALDatasetUniquePtr dataset =
        openFootprints(localfiles::locateDataset(source.file, directories));
    OGRLayer &layer = findLayer(*dataset, source.layer);
    const int id = findIdField(layer, idField);
    select(layer, source.where, {id});
    RowMaker maker(read);
    const std::size_t number = read.city.fates.size();
    for (std::size_t i = 0; i < number; ++i) {
        if (i % FeaturesPerReport == 0 &&
            !progress(static_cast<double>(i) / static_cast<double>(number)))
            throw contract::Stopped{};
        const OGRFeatureUniquePtr feature = localfiles::nextFeature(layer);
        if (!feature)
            throw BadLayer("MESS_SCENE_CHANGED_FOOTPRINTS");
        if (!use(maker.rowOf(*feature, i, id)))
            return;
    }
}

} // namespace vlt::city
