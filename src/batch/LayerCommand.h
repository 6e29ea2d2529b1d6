#pragma once

#include "batch/CommandLine.h"
#include "batch/StartUp.h"
#include "geodata/LayerProblems.h"
#include "sites/SiteLayer.h"
#include "tables/SystemProblems.h"

#include <QJsonObject>

#include <variant>

namespace vlt::batch {

/// What the commands that make a layer of a table have in common.
struct LayerRequest
{
    QString table;  ///< as given
    QString output; ///< layer file to write
    sites::SiteCatalogues catalogues;
    sites::SiteRepresentation pylons;
    tables::TableReading reading;
};

/// How many rows come out without a place, one counting once however many problems it has.
qint64 unplacedRows(const geodata::LayerPlacement &placement,
                    const geodata::LayerProblems &problems);

/// How the rows of a table come out in the layer.
struct LayerOutcome
{
    qint64 placed = 0;
    qint64 unplacedRows = 0;
    QList<Problem> systemProblems; ///< what does not fit about the coordinate systems
};

/// The output, the coordinate systems and the look of pylons.
QList<QCommandLineOption> layerOptions();

/// Takes the common part of the command line, or refuses it and gives the exit status.
///
/// @param inputs  files besides the table that the layer must not overwrite; empty names are none
std::variant<LayerRequest, ExitStatus> readLayerRequest(const QCommandLineParser &parser,
                                                        const Surroundings &surroundings,
                                                        const QStringList &inputs);

/// The systems that the options name, as they stand there, else those that go with the table.
geodata::SystemPair chosenSystems(const QCommandLineParser &parser,
                                  const geodata::SystemPair &otherwise);

/// --sheet, --encoding and --delimiter.
QList<QCommandLineOption> readingOptions();

/// How the options say that tables are read.
///
/// @par Errors   no key; which option has which wrong value.
Result<tables::TableReading> readReading(const QCommandLineParser &parser);

/// The outcome of a check, a row counting once however many problems it has.
///
/// @param unit     of the table's coordinates, as TableFileInfo has it
/// @param systems  with which the rows were placed
template<typename Check>
LayerOutcome layerOutcome(const Check &check, const QString &unit,
                          const geodata::SystemPair &systems)
{
    return {check.placement.placed, unplacedRows(check.placement, check.problems),
            tables::systemProblems(unit, systems, check.systems)};
}

/// Writes a finished layer, "-" being the standard output, and warns where its page is missing; the
/// exit status where that fails.
std::optional<ExitStatus> writeLayer(const QString &path, const Result<tables::TableLayer> &layer);

/// Prints what does not fit about the coordinate systems to the error output.
void warnOfSystems(const LayerOutcome &outcome);

/// Warns of rows without a place, and of unfit or missing coordinate systems, on the error output.
void warnOfLayer(const LayerOutcome &outcome, const geodata::SystemPair &systems);

/// What programs are told of every layer.
QJsonObject layerJson(const LayerRequest &request, const LayerOutcome &outcome,
                      const geodata::SystemPair &systems);

/// Prints a finished text; refused where it does not arrive.
ExitStatus printResult(const QString &text);

} // namespace vlt::batch
