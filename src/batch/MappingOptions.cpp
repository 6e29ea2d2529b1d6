#include "batch/MappingOptions.h"

#include "batch/OutputFiles.h"
#include "contract/ColumnMapping.h"
#include "contract/QueryOptions.h"
#include "geodata/TableMapping.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "platform/AtomicFile.h"
#include "tables/Cures.h"
#include "tables/MappingFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace vlt::batch {

namespace {

const QString Mapping = QStringLiteral("mapping");
const QString HeaderRow = QStringLiteral("header-row");
const QString SourceSrs = QStringLiteral("source-srs");
const QString WriteMapping = QStringLiteral("write-mapping");
const QString Cures = QStringLiteral("cures");
const QString NoHeader = QStringLiteral("none");

QString besideTable(const QString &table)
{
    return QString::fromStdString(
        contract::mappingFileOf(QFileInfo(table).absoluteFilePath().toStdString()));
}

Result<contract::ColumnMapping> readMappingAt(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return Error::fromLibrary(file.errorString(), path);
    const contract::ReadMapping read =
        contract::readMapping(file.read(contract::MaxMappingBytes + 1).toStdString());
    if (!read.mapping)
        return Error::fromLibrary(language::readerText(QString::fromStdString(read.reason)), path);
    return *read.mapping;
}

/// The mapping that a reading uses; an empty one without a file.
Result<contract::ColumnMapping> mappingInUse(const tables::TableReading &reading,
                                             const QString &table)
{
    const QString beside = besideTable(table);
    if (reading.columns == QLatin1String(contract::query::NoMapping) ||
        (reading.columns.isEmpty() && !QFileInfo(beside).isFile()))
        return contract::ColumnMapping();
    return readMappingAt(reading.columns.isEmpty()
                             ? beside
                             : QFileInfo(table).absoluteDir().absoluteFilePath(reading.columns));
}

/// The numbers of header rows in the value of the option; nothing if it is wrong.
std::optional<std::vector<std::int64_t>> headerRowsIn(const QString &value)
{
    std::vector<std::int64_t> rows;
    if (value == NoHeader)
        return rows;
    for (const QString &part : value.split(QLatin1Char(','))) {
        bool isNumber = false;
        const qint64 row = part.toLongLong(&isNumber);
        if (!isNumber || row <= (rows.empty() ? 0 : rows.back()) || row > contract::MaxHeaderRow ||
            rows.size() == contract::MaxHeaderRows)
            return std::nullopt;
        rows.push_back(row);
    }
    return rows;
}

/// The system in the value of the option, as mappings have it; empty if it is no EPSG code.
std::string systemIn(const QString &value)
{
    static const QRegularExpression code(QStringLiteral("\\A(?:EPSG:)?(\\d{1,9})\\z"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = code.match(value);
    return match.hasMatch() ? "EPSG:" + match.captured(1).toStdString() : std::string();
}

} // namespace

QCommandLineOption mappingOption()
{
    return {Mapping,
            dico_label("MESS_OPT_MAPPING",
                       "Mapping file that states the columns of the table, or none (default: the "
                       "file TABLE.columns.json beside the table)."),
            QStringLiteral("FILE")};
}

QString readMappingOption(const QCommandLineParser &parser, const QString &table)
{
    QString path = parser.value(Mapping);
    if (path == QLatin1String(contract::query::NoMapping))
        return path;
    if (path.isEmpty())
        return tables::mappingOption(table);
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return absolute == besideTable(table)
               ? QString()
               : QFileInfo(table).absoluteDir().relativeFilePath(absolute);
}

std::optional<Error> checkMapping(const QCommandLineParser &parser)
{
    const QString path = parser.value(Mapping);
    if (!parser.isSet(Mapping) || path == QLatin1String(contract::query::NoMapping))
        return std::nullopt;
    const auto read = readMappingAt(path);
    return read ? std::nullopt : std::optional(read.error());
}

QList<QCommandLineOption> mappingOutputOptions()
{
    return {{HeaderRow,
             dico_label("MESS_OPT_HEADER_ROW",
                        "Rows of the file that name the columns, or none; for the mapping."),
             QStringLiteral("N[,N...]")},
            {SourceSrs,
             dico_label("MESS_OPT_MAPPING_SRS",
                        "Coordinate system of the table, as an EPSG code; for the mapping."),
             QStringLiteral("EPSG:N")},
            {WriteMapping,
             dico_label("MESS_OPT_WRITE_MAPPING",
                        "Write what was understood as a mapping file, to be corrected: to FILE, "
                        "else beside the table, else into the user's folder of data."),
             QStringLiteral("[FILE]")},
            {Cures, dico_label("MESS_OPT_CURES",
                               "Put the cures of all mistakes in positions into the mapping that "
                               "is written.")}};
}

std::optional<Error> checkMappingOutput(const QCommandLineParser &parser)
{
    return parser.isSet(Cures) && !parser.isSet(WriteMapping)
               ? std::optional(
                     wrongUsage(dico_label("MESS_USE_CURES", "--cures needs --write-mapping")))
               : std::nullopt;
}

Result<Done> StatedMappings::apply(const QCommandLineParser &parser, const QString &table,
                                   tables::TableReading &reading)
{
    if (!parser.isSet(HeaderRow) && !parser.isSet(SourceSrs))
        return Done{};
    Result<contract::ColumnMapping> read = mappingInUse(reading, table);
    if (!read)
        return read.error();
    contract::ColumnMapping mapping = read.value();
    if (parser.isSet(HeaderRow)) {
        mapping.headerRows = headerRowsIn(parser.value(HeaderRow));
        if (!mapping.headerRows)
            return wrongValue(HeaderRow,
                              dico_label("MESS_USE_HEADER_ROW",
                                         "numbers of rows from 1 to %1, ascending, or none")
                                  .arg(contract::MaxHeaderRow),
                              parser.value(HeaderRow));
    }
    if (parser.isSet(SourceSrs)) {
        mapping.sourceSrs = systemIn(parser.value(SourceSrs));
        if (mapping.sourceSrs.empty())
            return wrongValue(SourceSrs, dico_label("MESS_USE_EPSG", "an EPSG code"),
                              parser.value(SourceSrs));
    }
    const QString folder = m_folder.filePath(QString::number(++m_count));
    QDir().mkpath(folder);
    reading.columns = folder + QLatin1Char('/') + QFileInfo(besideTable(table)).fileName();
    return platform::writeWhole(reading.columns,
                                QByteArray::fromStdString(contract::writeMapping(mapping)),
                                platform::Access::UserOnly);
}

Result<QString> writeMapping(const QCommandLineParser &parser, const QString &table,
                             const QString &connection,
                             const QList<geodata::PositionFinding> &findings)
{
    if (!parser.isSet(WriteMapping))
        return QString();
    const Result<QString> text = geodata::readTableMapping(connection);
    if (!text)
        return text.error();
    const contract::ReadMapping read = contract::readMapping(text.value().toStdString());
    if (!read.mapping)
        return Error::fromLibrary(language::readerText(QString::fromStdString(read.reason)), table);
    const contract::ColumnMapping mapping =
        parser.isSet(Cures) ? tables::withCures(*read.mapping, findings) : *read.mapping;
    if (const QString path = parser.value(WriteMapping); !path.isEmpty()) {
        if (isOneOf(path, {table}))
            return outputIsInput(path);
        const Result<Done> written =
            platform::writeWhole(path, QByteArray::fromStdString(contract::writeMapping(mapping)),
                                 platform::Access::Shared);
        return written ? Result<QString>(QFileInfo(path).absoluteFilePath()) : written.error();
    }
    if (tables::saveBesideTable(table, mapping))
        return besideTable(table);
    const Result<Done> kept = tables::keepMapping(table, mapping);
    return kept ? Result<QString>(tables::mappingOption(table)) : kept.error();
}

} // namespace vlt::batch
