#pragma once

namespace vlt::driver {

/// What the rows of a table are.
enum class TableKind {
    Sites,
    Links,
};

} // namespace vlt::driver
