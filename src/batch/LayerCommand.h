#pragma once

#include "batch/CommandLine.h"
#include "batch/StartUp.h"
#include "contract/TableKind.h"
#include "geodata/LayerProblems.h"
#include "sites/SiteLayer.h"
#include "tables/SystemProblems.h"

#include <QJsonObject>

#include <variant>

namespace vlt::batch {

/// Values of the command line that all commands for layers of tables have.
struct LayerRequest
{
    QString table;  ///< as given
    QString output; ///< layer file to write
    sites::SiteCatalogues catalogues;
    sites::SiteRepresentation pylons;
    tables::TableReading reading;
};

/// Number of rows without a position; a row with several problems counts once.
qint64 unplacedRows(const geodata::LayerPlacement &placement,
                    const geodata::LayerProblems &problems);

/// Result of reading the rows of a table for its layer.
struct LayerOutcome
{
    qint64 placed = 0;
    qint64 unplacedRows = 0;
    QList<Problem> systemProblems; ///< contradictions between the table and the coordinate systems
    QList<geodata::PositionFinding> findings; ///< about all positions
    QList<Problem> mappingProblems;           ///< of the mapping file
};

/// The problems of the mapping file among those of a table.
QList<Problem> mappingProblems(const geodata::LayerProblems &problems);

/// The options for the output, the reading of the table, the coordinate systems and the
/// representation of pylons.
QList<QCommandLineOption> layerOptions(contract::TableKind kind);

/// Reads the common part of the command line, or refuses it and returns the exit status.
///
/// @param inputs  further files that the layer must not overwrite; empty names are ignored
std::variant<LayerRequest, ExitStatus> readLayerRequest(const QCommandLineParser &parser,
                                                        contract::TableKind kind,
                                                        const Surroundings &surroundings,
                                                        const QStringList &inputs);

/// The systems of the options, unchanged, else those suggested for the table.
geodata::SystemPair chosenSystems(const QCommandLineParser &parser,
                                  const geodata::SystemPair &otherwise);

/// The options --sheet, --encoding, --delimiter, --swap-axes and --mapping.
QList<QCommandLineOption> readingOptions();

/// The option for the file that completes a table: --sectors for sites, --sites for links.
QCommandLineOption secondFileOption(contract::TableKind kind);

/// Reads these options.
///
/// @param table  as given; the path of the second file becomes relative to its folder
/// @par Errors   no key; the text names the option and its wrong value.
Result<tables::TableReading> readReading(const QCommandLineParser &parser, contract::TableKind kind,
                                         const QString &table);

/// The result of a check; a row with several problems counts once.
///
/// @param systems  coordinate systems of the rows and of the project
template<typename Check>
LayerOutcome layerOutcome(const Check &check, const tables::TableFileInfo &file,
                          const geodata::SystemPair &systems)
{
    return {check.placement.placed, unplacedRows(check.placement, check.problems),
            tables::systemProblems(file, systems, check.systems),
            tables::otherProblems(file, systems, check.systems, check.problems).findings,
            mappingProblems(check.problems)};
}

/// Writes a finished layer, for "-" to the standard output, and warns if its page is missing.
/// Returns an exit status only after a failure.
std::optional<ExitStatus> writeLayer(const QString &path, const Result<tables::TableLayer> &layer);

/// Prints the warnings about the coordinate systems and the positions on the error output.
void warnOfSystems(const LayerOutcome &outcome);

/// Warns of rows without a position, and of wrong or missing coordinate systems, on the error
/// output.
void warnOfLayer(const LayerOutcome &outcome, const geodata::SystemPair &systems);

/// The part of the JSON output that all layers have.
QJsonObject layerJson(const LayerRequest &request, const LayerOutcome &outcome,
                      const geodata::SystemPair &systems);

/// Prints a finished text; refused if it cannot be written.
ExitStatus printResult(const QString &text);

} // namespace vlt::batch
