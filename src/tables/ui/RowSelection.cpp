#include "tables/ui/RowSelection.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QTableView>

namespace vlt::tables {

RowSelection::RowSelection(QTableView *list) : QObject(list), m_list(list)
{
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &index) {
                if (!m_isSelecting && rowOf(index) > 0)
                    Q_EMIT chosen(rowOf(index));
            });
    // a click on the line that is selected already selects its object again
    connect(list, &QTableView::clicked, this, [this](const QModelIndex &index) {
        if (rowOf(index) > 0)
            Q_EMIT chosen(rowOf(index));
    });
    connect(list, &QTableView::activated, this, [this](const QModelIndex &index) {
        if (rowOf(index) > 0)
            Q_EMIT opened(rowOf(index));
    });
}

void RowSelection::select(qint64 row)
{
    const QScopedValueRollback selecting(m_isSelecting, true);
    const QAbstractItemModel &model = *m_list->model();
    for (int line = 0; row > 0 && line < model.rowCount(); ++line) {
        const QModelIndex index = model.index(line, 0);
        if (rowOf(index) != row)
            continue;
        m_list->selectRow(line);
        m_list->scrollTo(index);
        return;
    }
    m_list->clearSelection();
}

/// 0 for a line that belongs to no row.
qint64 RowSelection::rowOf(const QModelIndex &index) const
{
    return index.siblingAtColumn(0).data().toLongLong();
}

} // namespace vlt::tables
