#pragma once

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <string>
#include <vector>

namespace vlt::city {

// These functions throw BadLayer if there is no such file, layer or field. The caller keeps the
// library quiet and off the network.

/// Opens footprints by the absolute path of a file or folder.
GDALDatasetUniquePtr openFootprints(const std::string &file);

/// The layer of this name, else of this name in another case; the first one for an empty name.
OGRLayer &findLayer(GDALDataset &dataset, const std::string &name);

/// The index of a field of numbers or texts, found likewise; -1 for an empty name.
int findField(OGRLayer &layer, const std::string &name);

enum class Shapes { Read, Ignored };

/// Reads only the features that a condition selects, and only the given fields; negative ones are
/// ignored.
void select(OGRLayer &layer, const std::string &where, std::vector<int> fields,
            Shapes shapes = Shapes::Read);

} // namespace vlt::city
