#pragma once

#include "plugins/tables/roles/Vocabulary.h"

#include <string_view>

namespace vlt::driver {

/// The name of a site without the sector at its end: "Gare A", "GARE_2", "Gare S3" and "Gare Alpha"
/// give Gare, GARE, Gare and Gare. Other names are returned as they are.
std::string_view withoutSector(std::string_view name, const Vocabulary &vocabulary);

} // namespace vlt::driver
