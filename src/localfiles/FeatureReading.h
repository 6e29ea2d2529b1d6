#pragma once

#include <ogrsf_frmts.h>

#include <string>
#include <vector>

namespace vlt::localfiles {

/// Names of the fields of a layer, in their order.
std::vector<std::string> fieldNamesOf(OGRLayer &layer);

/// Makes a layer read the given fields only, because a scene uses few columns of a wide table.
///
/// @param fields      their indices; negative ones are ignored
/// @param withShapes  false: features may come without their geometry
void readOnlyFields(OGRLayer &layer, const std::vector<int> &fields, bool withShapes = true);

/// The next feature; null after the last one. @throws BadLayer  it cannot be read
OGRFeatureUniquePtr nextFeature(OGRLayer &layer);

} // namespace vlt::localfiles
