#pragma once

#include <QObject>

class QTableView;

namespace vlt::tables {

/// The selected row of a list whose first column has numbers of rows of a file. What the program
/// selects is not reported.
class RowSelection : public QObject
{
    Q_OBJECT

public:
    /// The list owns this object.
    explicit RowSelection(QTableView *list);

    /// Selects the first line of a row of the file and shows it; no line if there is none.
    void select(qint64 row);

Q_SIGNALS:
    /// The user selected a line; `row` of the file, from 1.
    void chosen(qint64 row);
    /// The user clicked a line twice or pressed Enter.
    void opened(qint64 row);

private:
    qint64 rowOf(const QModelIndex &index) const;

    QTableView *m_list;
    bool m_isSelecting = false;
};

} // namespace vlt::tables
