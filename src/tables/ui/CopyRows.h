#pragma once

class QTableView;

namespace vlt::tables {

/// Lets the user copy the selected rows of a table, or all rows if none is selected, with Ctrl+C or
/// from a context menu. The copy has a line of headers, then a line of tab-separated texts for each
/// row.
void makeRowsCopyable(QTableView *table);

} // namespace vlt::tables
