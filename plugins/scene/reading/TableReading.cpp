#include "plugins/scene/reading/TableReading.h"

#include "contract/Installation.h"
#include "localframe/TrueNorth.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/TableDrivers.h"

#include <cpl_error.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace vlt::scene {

namespace {

/// Metres or degrees per unit behind a number; 1 without a unit, nothing for any other text.
std::optional<double> unitIn(std::string_view text)
{
    constexpr double FootM = 0.3048;
    constexpr std::pair<std::string_view, double> Known[] = {
        {"", 1}, {"m", 1}, {"\u00B0", 1}, {"deg", 1}, {"ft", FootM}};
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
    for (const auto &[name, size] : Known) {
        if (text == name)
            return size;
    }
    return std::nullopt;
}

enum class Units { None, Accepted };

std::optional<double> numberIn(std::string_view text, Units units)
{
    std::string plain(text);
    std::replace(plain.begin(), plain.end(), ',', '.');
    const std::size_t begin = std::min(plain.find_first_not_of(" \t+"), plain.size());
    const char *last = plain.data() + plain.size();
    double value = 0;
    const auto [end, fault] = std::from_chars(plain.data() + begin, last, value);
    if (fault != std::errc())
        return std::nullopt;
    const std::optional<double> unit = unitIn({end, static_cast<std::size_t>(last - end)});
    const bool isPlain = std::all_of(end, last, [](char c) { return c == ' '; });
    return unit && (isPlain || units == Units::Accepted) ? std::optional(value * *unit)
                                                         : std::nullopt;
}

std::optional<double> valueAt(const OGRFeature &feature, int field, double least, double most,
                              Units units)
{
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return std::nullopt;
    const bool isText = feature.GetFieldDefnRef(field)->GetType() == OFTString;
    const std::optional<double> value = isText ? numberIn(feature.GetFieldAsString(field), units)
                                               : std::optional(feature.GetFieldAsDouble(field));
    return value && *value >= least && *value <= most ? value : std::nullopt;
}

std::string nameOf(const OGRSpatialReference *srs)
{
    if (!srs)
        return {};
    const char *authority = srs->GetAuthorityName(nullptr);
    const char *code = srs->GetAuthorityCode(nullptr);
    if (authority && code)
        return std::string(authority) + ':' + code;
    return srs->GetName() ? srs->GetName() : "";
}

} // namespace

GDALDatasetUniquePtr openTable(const contract::ConnectionString &table)
{
    registerTableDrivers();
    if (!GDALGetDriverByName(contract::TableDriver))
        throw BadLayer("MESS_SCENE_NO_DRIVER", {contract::TableDriver});
    CPLErrorReset();
    const char *const drivers[] = {contract::TableDriver, nullptr};
    GDALDatasetUniquePtr dataset(
        GDALDataset::Open(contract::composeConnection(table).c_str(),
                          GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR, drivers));
    if (!dataset)
        throw BadLayer(LibraryWords{CPLGetLastErrorMsg()});
    return dataset;
}

std::optional<osg::Vec2d> placeOf(const OGRFeature &feature)
{
    const OGRGeometry *geometry = feature.GetGeometryRef();
    if (!geometry || wkbFlatten(geometry->getGeometryType()) != wkbPoint || geometry->IsEmpty())
        return std::nullopt;
    const OGRPoint &point = *geometry->toPoint();
    const osg::Vec2d position(point.getX(), point.getY());
    return std::isfinite(position.x()) && std::isfinite(position.y()) ? std::optional(position)
                                                                      : std::nullopt;
}

std::optional<double> numberAt(const OGRFeature &feature, int field, double least, double most)
{
    return valueAt(feature, field, least, most, Units::None);
}

std::optional<double> quantityAt(const OGRFeature &feature, int field, double least, double most)
{
    return valueAt(feature, field, least, most, Units::Accepted);
}

bool hasValue(const OGRFeature &feature, int field)
{
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return false;
    static constexpr std::string_view Missing[] = {"",     "-",    "--",   "NA", "N/A",
                                                   "#N/A", "null", "NULL", "NaN"};
    std::string_view text = feature.GetFieldAsString(field);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
    return std::find(std::begin(Missing), std::end(Missing), text) == std::end(Missing);
}

std::string textAt(const OGRFeature &feature, int field)
{
    return field < 0 ? std::string() : feature.GetFieldAsString(field);
}

SceneFrame moveToFrame(OGRLayer &layer, std::vector<osg::Vec2d> &positions)
{
    return moveToFrame(layer.GetSpatialRef(), positions);
}

SceneFrame moveToFrame(const OGRSpatialReference *srs, std::vector<osg::Vec2d> &positions)
{
    std::vector<contract::Place> places = placesOf(positions);
    const auto local = localframe::moveToFrame(srs, places);
    std::transform(places.begin(), places.end(), positions.begin(), toVector);
    return sceneFrame(local, srs);
}

std::vector<double> northDirectionsDeg(OGRLayer &layer, const SceneFrame &frame,
                                       const std::vector<osg::Vec2d> &positions)
{
    return localframe::northDirectionsDeg(frame.local->plain(), layer.GetSpatialRef(),
                                          placesOf(positions));
}

SceneFrame sceneFrame(std::shared_ptr<const localframe::LocalFrame> local,
                      const OGRSpatialReference *srs)
{
    return {std::make_shared<LocalFrame>(std::move(local)), nameOf(srs), localframe::wktOf(srs)};
}

} // namespace vlt::scene
