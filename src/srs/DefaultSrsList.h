#pragma once

#include "srs/SrsEntryList.h"

namespace vlt::srs {

/// The default systems of the installation, in the order of its ini file: "SrsCode_n" and
/// "SrsShortName_n" in the section VltDefaultSrs, n = 1, 2 ... The list ends at the first n without
/// a code.
class DefaultSrsList final : public SrsEntryList
{
public:
    /// Reads the ini file; if it is missing, the list is empty.
    DefaultSrsList();
};

} // namespace vlt::srs
