#include "geodata/ValuesFile.h"

#include "geodata/ErrorCollector.h"
#include "platform/AtomicFile.h"

#include <QFile>
#include <QFileInfo>

#include <ogrsf_frmts.h>

namespace vlt::geodata {

namespace {

constexpr GIntBig RowsPerTransaction = 100000;

bool isPackage(const QString &path)
{
    return path.endsWith(QLatin1String(".gpkg"), Qt::CaseInsensitive);
}

/// In text files the library puts 64-bit integers into quotation marks; reals without decimals are
/// written as integers.
OGRFieldDefn definitionOf(const ValueColumn &column, bool isInPackage)
{
    const OGRFieldType whole = isInPackage ? OFTInteger64 : OFTReal;
    const OGRFieldType type = column.type == ValueColumn::Type::Whole    ? whole
                              : column.type == ValueColumn::Type::Number ? OFTReal
                                                                         : OFTString;
    return {column.name.toUtf8().constData(), type};
}

} // namespace

class ValuesFile::Parts
{
public:
    explicit Parts(std::unique_ptr<platform::FileAside> aside, const QString &path)
        : m_aside(std::move(aside))
        , m_path(path)
        , m_isPackage(isPackage(path))
    {}

    Result<Done> begin(const QList<ValueColumn> &columns, const std::string &system)
    {
        const ErrorCollector errors;
        OGRSpatialReference srs;
        srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        const bool hasSystem = !system.empty() && srs.importFromWkt(system.c_str()) == OGRERR_NONE;
        GDALDriver *driver = GetGDALDriverManager()->GetDriverByName(m_isPackage ? "GPKG" : "CSV");
        if (driver)
            m_dataset.reset(driver->Create(QFile::encodeName(m_aside->name()).constData(), 0, 0, 0,
                                           GDT_Unknown, nullptr));
        if (m_dataset)
            m_layer = m_dataset->CreateLayer(
                QFileInfo(m_path).completeBaseName().toUtf8().constData(),
                hasSystem ? &srs : nullptr, m_isPackage ? wkbUnknown : wkbNone, nullptr);
        if (!m_layer)
            return failed(errors);
        for (qsizetype i = m_isPackage ? 1 : 0; i < columns.size(); ++i) {
            OGRFieldDefn definition = definitionOf(columns.at(i), m_isPackage);
            if (m_layer->CreateField(&definition, FALSE) != OGRERR_NONE)
                return failed(errors);
        }
        m_row = std::make_unique<OGRFeature>(m_layer->GetLayerDefn());
        return Done{};
    }

    Result<Done> add(const std::vector<ValueCell> &cells, const OGRGeometry *shape)
    {
        const ErrorCollector errors;
        if (m_isPackage && m_rows % RowsPerTransaction == 0 && !nextTransaction())
            return failed(errors);
        m_row->Reset();
        int field = 0;
        for (const ValueCell &cell : cells) {
            if (m_isPackage && &cell == &cells.front())
                m_row->SetFID(std::get<std::int64_t>(cell)); // the number of a row in a package
            else
                set(field++, cell);
        }
        if (m_isPackage && shape && m_row->SetGeometry(shape) != OGRERR_NONE)
            return failed(errors);
        if (m_layer->CreateFeature(m_row.get()) != OGRERR_NONE)
            return failed(errors);
        ++m_rows;
        return Done{};
    }

    Result<Done> finish()
    {
        {
            const ErrorCollector errors;
            m_row.reset();
            if (m_isPackage && m_rows > 0 && m_dataset->CommitTransaction() != OGRERR_NONE)
                return failed(errors);
            m_dataset.reset();
            // The library does not report every failure to write.
            const GDALDatasetUniquePtr written(
                GDALDataset::Open(QFile::encodeName(m_aside->name()).constData(), GDAL_OF_VECTOR));
            if (!written || written->GetLayer(0)->GetFeatureCount() != m_rows)
                return failed(errors);
        }
        return m_aside->replace();
    }

private:
    bool nextTransaction()
    {
        return (m_rows == 0 || m_dataset->CommitTransaction() == OGRERR_NONE) &&
               m_dataset->StartTransaction() == OGRERR_NONE;
    }

    void set(int field, const ValueCell &cell)
    {
        if (const auto *whole = std::get_if<std::int64_t>(&cell))
            m_row->SetField(field, static_cast<GIntBig>(*whole));
        else if (const auto *number = std::get_if<double>(&cell))
            m_row->SetField(field, *number);
        else if (const auto *text = std::get_if<std::string>(&cell))
            m_row->SetField(field, text->c_str());
    }

    Error failed(const ErrorCollector &errors) const
    {
        return Error::fromLibrary(errors.failure(QStringLiteral("The file cannot be written")),
                                  m_path);
    }

    std::unique_ptr<platform::FileAside> m_aside; ///< removed after the dataset is closed
    QString m_path;
    bool m_isPackage;
    GDALDatasetUniquePtr m_dataset;
    OGRLayer *m_layer = nullptr;
    std::unique_ptr<OGRFeature> m_row;
    GIntBig m_rows = 0;
};

bool ValuesFile::isName(const QString &path)
{
    return isPackage(path) || path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

Result<std::unique_ptr<ValuesFile>> ValuesFile::create(const QString &path,
                                                       const QList<ValueColumn> &columns,
                                                       const std::string &system)
{
    Result<std::unique_ptr<platform::FileAside>> aside = platform::FileAside::create(path);
    if (!aside)
        return aside.error();
    auto parts = std::make_unique<Parts>(std::move(aside).value(), path);
    if (const Result<Done> begun = parts->begin(columns, system); !begun)
        return begun.error();
    return std::unique_ptr<ValuesFile>(new ValuesFile(std::move(parts)));
}

ValuesFile::ValuesFile(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}

ValuesFile::~ValuesFile() = default;

Result<Done> ValuesFile::add(const std::vector<ValueCell> &cells, const OGRGeometry *shape)
{
    return m_parts->add(cells, shape);
}

Result<Done> ValuesFile::finish()
{
    return m_parts->finish();
}

} // namespace vlt::geodata
