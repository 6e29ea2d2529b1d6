#pragma once

#include "batch/CommandLine.h"

namespace vlt::batch {

/// The files about the rows of a table that "vltlayers info" writes.
struct RowOutputs
{
    QString report;  ///< empty for none
    QString rejects; ///< empty for none

    bool isEmpty() const { return report.isEmpty() && rejects.isEmpty(); }
};

/// The options --report and --rejects.
QList<QCommandLineOption> rowOutputOptions();

/// @par Errors  wrong usage: several tables, an option without a value, the same file for both
Result<RowOutputs> readRowOutputs(const QCommandLineParser &parser);

/// The error if one of the files would replace one of the inputs.
std::optional<Error> checkRowOutputs(const RowOutputs &outputs, const QStringList &inputs);

/// Writes the files.
///
/// @param connection  of the table
/// @param quiet       without progress
Result<Done> writeRowOutputs(const RowOutputs &outputs, const QString &connection, bool quiet);

} // namespace vlt::batch
