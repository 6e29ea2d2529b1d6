#include "TableAccess.h"

#include <cstring>
#include <ogrsf_frmts.h>
#include <stdexcept>

namespace vlt::benchmarks {

namespace {

GDALDatasetUniquePtr open(const std::string &connection, const TableSource &source)
{
    CPLStringList drivers;
    for (const std::string &driver : source.drivers)
        drivers.AddString(driver.c_str());
    CPLStringList options;
    for (const std::string &option : source.options)
        options.AddString(option.c_str());

    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // the message goes into the error
    CPLErrorReset();
    GDALDatasetUniquePtr dataset(GDALDataset::Open(
        connection.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR,
        drivers.empty() ? nullptr : drivers.List(), options.empty() ? nullptr : options.List(),
        nullptr));
    if (!dataset)
        throw std::runtime_error(connection + ": " + CPLGetLastErrorMsg() +
                                 " (GDAL_DRIVER_PATH is " +
                                 CPLGetConfigOption("GDAL_DRIVER_PATH", "not set") + ")");
    if (dataset->GetLayerCount() < 1)
        throw std::runtime_error(connection + ": no layer");
    return dataset;
}

double textSum(const char *text)
{
    const std::size_t length = std::strlen(text);
    if (length == 0)
        return 0;
    return static_cast<double>(length) + static_cast<unsigned char>(text[0]) +
           static_cast<unsigned char>(text[length - 1]);
}

double fieldSum(const OGRFeature &feature, int field, OGRFieldType type)
{
    switch (type) {
    case OFTInteger:
        return feature.GetFieldAsInteger(field);
    case OFTInteger64:
        return static_cast<double>(feature.GetFieldAsInteger64(field));
    case OFTReal:
        return feature.GetFieldAsDouble(field);
    default:
        return textSum(feature.GetFieldAsString(field));
    }
}

void count(OGRLayer &layer, Measurement &result)
{
    const OGRFeatureDefn *definition = layer.GetLayerDefn();
    const int fields = definition->GetFieldCount();
    for (int field = 0; field < fields; ++field)
        result.checksum +=
            static_cast<double>(std::strlen(definition->GetFieldDefn(field)->GetNameRef()));
    result.fields += fields;
    result.rows += layer.GetFeatureCount(TRUE);
}

void read(OGRLayer &layer, Measurement &result)
{
    const OGRFeatureDefn *definition = layer.GetLayerDefn();
    std::vector<OGRFieldType> types;
    for (int field = 0; field < definition->GetFieldCount(); ++field)
        types.push_back(definition->GetFieldDefn(field)->GetType());

    const int fields = static_cast<int>(types.size());
    result.fields += fields;
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        ++result.rows;
        for (int field = 0; field < fields; ++field) {
            if (feature->IsFieldSetAndNotNull(field))
                result.checksum +=
                    fieldSum(*feature, field, types[static_cast<std::size_t>(field)]);
        }
    }
}

Measurement measure(const TableSource &source, void (*task)(OGRLayer &, Measurement &))
{
    Measurement result;
    std::vector<GDALDatasetUniquePtr> opened; // closed after the measurement
    const Stopwatch watch;
    for (const std::string &connection : source.connections) {
        opened.push_back(open(connection, source));
        for (OGRLayer *layer : opened.back()->GetLayers())
            task(*layer, result);
    }
    result.milliseconds = watch.milliseconds();
    return result;
}

} // namespace

Measurement openAndCount(const TableSource &source)
{
    return measure(source, count);
}

Measurement readEverything(const TableSource &source)
{
    return measure(source, read);
}

Measurement openAgain(const TableSource &source)
{
    openAndCount(source);
    return openAndCount(source);
}

} // namespace vlt::benchmarks
