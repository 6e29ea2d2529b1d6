#pragma once

namespace vlt::tables {

/// What the rows of a table are.
enum class TableKind {
    Sites,
    Links,
};

} // namespace vlt::tables
