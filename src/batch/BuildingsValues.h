#pragma once

#include "batch/CommandLine.h"
#include "buildings/ValueSummary.h"
#include "buildings/ValuedBuildings.h"

#include <QJsonObject>

#include <optional>

namespace vlt::batch {

/// The options --values and --id-field.
QList<QCommandLineOption> valuesOptions();

/// The file of values that the options ask for; nothing without --values.
///
/// @par Errors  wrong usage: a name without the suffix of such a file, --id-field alone or empty
Result<std::optional<buildings::ValuesTarget>> readValuesOptions(const QCommandLineParser &parser);

/// The summary as "summary" of the report for programs.
QJsonObject summaryJson(const buildings::ValueSummary &summary);

} // namespace vlt::batch
