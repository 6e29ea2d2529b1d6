#pragma once

#include "srs/SrsEntryList.h"

namespace vlt::srs {

/// The systems that the installation offers, in the order of its ini file: "SrsCode_n" and
/// "SrsShortName_n" of section VltDefaultSrs, n = 1, 2 ... The first n without a code ends the
/// list.
class DefaultSrsList final : public SrsEntryList
{
public:
    /// Reads the ini file; without one, the list is empty.
    DefaultSrsList();
};

} // namespace vlt::srs
