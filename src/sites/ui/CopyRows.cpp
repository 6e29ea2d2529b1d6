#include "sites/ui/CopyRows.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>

#include <algorithm>
#include <numeric>

namespace vlt::sites {

namespace {

/// One line; a tab or line feed within a text would tear it apart.
template<typename TextOf>
QString line(int columns, const TextOf &textOf)
{
    QStringList texts;
    for (int column = 0; column < columns; ++column)
        texts += textOf(column).simplified();
    return texts.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

/// In the order of the table.
QList<int> rowsToCopy(const QTableView &table)
{
    QList<int> rows;
    if (table.selectionModel()->hasSelection()) {
        for (const QModelIndex &index : table.selectionModel()->selectedRows())
            rows += index.row();
        std::sort(rows.begin(), rows.end());
    } else {
        rows.resize(table.model()->rowCount());
        std::iota(rows.begin(), rows.end(), 0);
    }
    return rows;
}

QString rowsAsText(const QTableView &table)
{
    const QAbstractItemModel &model = *table.model();
    const int columns = model.columnCount();
    QString text = line(
        columns, [&](int column) { return model.headerData(column, Qt::Horizontal).toString(); });
    for (const int row : rowsToCopy(table))
        text +=
            line(columns, [&](int column) { return model.index(row, column).data().toString(); });
    return text;
}

} // namespace

void makeRowsCopyable(QTableView *table)
{
    auto *copy = new QAction(QObject::tr("&Copy the rows", "MESS_COPY_ROWS"), table);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QAction::triggered, table,
                     [table] { QGuiApplication::clipboard()->setText(rowsAsText(*table)); });
    table->addAction(copy);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

} // namespace vlt::sites
