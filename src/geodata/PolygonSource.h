#pragma once

#include "platform/Result.h"

#include <QList>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>

class GDALDataset;
class OGRLayer;

namespace vlt::geodata {

/// Type of a field of a vector layer, as far as it matters for heights of buildings.
enum class FieldKind { Integer, Integer64, Real, String, Other };

struct VectorField
{
    QString name;
    FieldKind kind = FieldKind::Other;
};

/// Bounds in the coordinate system of their layer; not finite if nothing has a position.
struct Extent
{
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;

    double centerX() const { return (minX + maxX) * 0.5; }
    double centerY() const { return (minY + maxY) * 0.5; }

    /// Whether all bounds are finite.
    bool isPlaced() const;
};

/// The properties of a coordinate system that are shown.
struct SystemInfo
{
    QString name; ///< "EPSG:2154", else the name of the system, empty for none
    bool isGeographic = false;
    double unitM = 0;   ///< metres per unit of a projected system; 0 for others
    QString definition; ///< WKT; empty for none
};

struct PolygonLayer
{
    QString name;
    QList<VectorField> fields; ///< all of them, in the order of the layer
    SystemInfo system;
    qint64 featureCount = -1; ///< -1 if the format would have to read all features to count them
};

/// The layers of a local vector dataset that may hold building footprints: those of polygons,
/// multipolygons and of no declared geometry. The dataset stays open as long as the source exists.
/// Any thread may use it.
class PolygonSource
{
public:
    /// Opens a file or folder with the formats for local files.
    ///
    /// @return      the source; its list of layers may be empty
    /// @par Errors  MESS_ERR_OPEN_VECTORDS, with the path and the library's reason
    static Result<std::shared_ptr<PolygonSource>> open(const QString &path);
    ~PolygonSource();

    const QList<PolygonLayer> &layers() const { return m_layers; }

    /// Bounds of a layer of layers(); reads every feature if the format does not store the bounds.
    Extent extent(int layer);

    /// The refusal of an SQL condition that is wrong (MESS_ERR_WHERE, with the library's reason) or
    /// selects no feature of a layer of layers() (MESS_ERR_WHERE_EMPTY); none for an empty one.
    std::optional<Error> conditionRefused(int layer, const QString &condition);

private:
    PolygonSource() = default;

    std::unique_ptr<GDALDataset> m_dataset;
    QList<PolygonLayer> m_layers;
    QList<OGRLayer *> m_handles; ///< of m_layers, owned by the dataset
    std::mutex m_reading;        ///< held while features are read
};

} // namespace vlt::geodata
