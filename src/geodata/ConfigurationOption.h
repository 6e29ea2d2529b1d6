#pragma once

#include <QString>

namespace vlt::geodata {

/// Value of a configuration option of the geodata library, which also answers with the environment
/// variable of that name; empty where neither is set.
QString configurationOption(const char *name);

} // namespace vlt::geodata
