#pragma once

#include "batch/CommandLine.h"
#include "contract/TableKind.h"
#include "geodata/LayerProblems.h"
#include "tables/TableReading.h"

#include <QTemporaryDir>

#include <optional>

namespace vlt::batch {

/// The option --mapping.
QCommandLineOption mappingOption();

/// Reads the option for TableReading::columns. Without the option it is the mapping that the user's
/// folder of data keeps for the table, or none.
///
/// @param table  as given; the path of the mapping becomes relative to its folder
QString readMappingOption(const QCommandLineParser &parser, const QString &table);

/// The error if the file that --mapping names is no mapping.
std::optional<Error> checkMapping(const QCommandLineParser &parser);

/// The options of "vltlayers info" that make mappings: --header-row, --source-srs, --write-mapping,
/// --cures.
QList<QCommandLineOption> mappingOutputOptions();

/// The error if --cures is given without --write-mapping.
std::optional<Error> checkMappingOutput(const QCommandLineParser &parser);

/// Mappings with what --header-row and --source-srs state about tables.
class StatedMappings
{
public:
    /// Lets a reading use such a mapping, if one of the options is given.
    ///
    /// @par Errors   wrong usage, or the mapping in use cannot be read or the new one be written
    Result<Done> apply(const QCommandLineParser &parser, const QString &table,
                       tables::TableReading &reading);

private:
    QTemporaryDir m_folder;
    int m_count = 0;
};

/// Writes the mapping of a table if --write-mapping is given: to its file, else beside the table,
/// else into the user's folder of data.
///
/// @param connection  of the table
/// @param findings    about its positions; with --cures, the mapping gets what cures them
/// @return  the path; empty without the option
Result<QString> writeMapping(const QCommandLineParser &parser, const QString &table,
                             const QString &connection,
                             const QList<geodata::PositionFinding> &findings);

} // namespace vlt::batch
