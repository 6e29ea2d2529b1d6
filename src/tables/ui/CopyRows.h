#pragma once

class QTableView;

namespace vlt::tables {

/// Lets the user copy the selected rows of a table, or all of them where none is selected, as lines
/// of tab-separated texts below a line with the headers: by Ctrl+C and from a context menu.
void makeRowsCopyable(QTableView *table);

} // namespace vlt::tables
