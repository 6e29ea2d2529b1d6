#pragma once

#include <QString>

namespace vlt::geodata {

/// Value of a configuration option of the geodata library, or of the environment variable of that
/// name; empty if neither is set.
QString configurationOption(const char *name);

} // namespace vlt::geodata
