#pragma once

#include "batch/CommandLine.h"
#include "buildings/ValuedBuildings.h"

#include <optional>

namespace vlt::batch {

/// The options --values and --id-field.
QList<QCommandLineOption> valuesOptions();

/// The file of values that the options ask for; nothing without --values.
///
/// @par Errors  wrong usage: a name without the suffix of such a file, --id-field alone or empty
Result<std::optional<buildings::ValuesTarget>> readValuesOptions(const QCommandLineParser &parser);

} // namespace vlt::batch
