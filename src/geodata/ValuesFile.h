#pragma once

#include "platform/Result.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

class OGRGeometry;

namespace vlt::geodata {

/// A column of a values file.
struct ValueColumn
{
    enum class Type { Whole, Number, Text };

    QString name;
    Type type = Type::Text;
};

/// A cell of a values file; std::monostate for an empty one. Texts are in UTF-8.
using ValueCell = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A table that is written row by row: a text file (".csv") or a GeoPackage (".gpkg"), in which the
/// rows have shapes. It takes the place of an older file when it is complete.
class ValuesFile
{
public:
    /// Whether a name ends in ".csv" or ".gpkg", in any case of letters.
    static bool isName(const QString &path);

    /// Begins a file.
    ///
    /// @param columns  the first one has the numbers of the rows, which must differ
    /// @param system   WKT of the shapes' coordinate system; empty if it is unknown
    /// @par Errors     those of platform::FileAside::create(); the library's reason
    static Result<std::unique_ptr<ValuesFile>>
    create(const QString &path, const QList<ValueColumn> &columns, const std::string &system);
    ~ValuesFile();

    /// Adds a row.
    ///
    /// @param cells  one for each column, of its type
    /// @param shape  may be null
    /// @par Errors   the library's reason, with the path
    Result<Done> add(const std::vector<ValueCell> &cells, const OGRGeometry *shape);

    /// Completes the file and lets it replace the older one.
    ///
    /// @par Errors  as of add(), and those of platform::FileAside::replace()
    Result<Done> finish();

private:
    class Parts;
    explicit ValuesFile(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> m_parts;
};

} // namespace vlt::geodata
