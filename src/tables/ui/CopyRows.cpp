#include "tables/ui/CopyRows.h"

#include "wizard/base/RowsAsText.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>

namespace vlt::tables {

void makeRowsCopyable(QTableView *table)
{
    auto *copy = new QAction(QObject::tr("&Copy the rows", "MESS_COPY_ROWS"), table);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QAction::triggered, table, [table] {
        QGuiApplication::clipboard()->setText(wizard::rowsAsText(*table));
    });
    table->addAction(copy);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

} // namespace vlt::tables
