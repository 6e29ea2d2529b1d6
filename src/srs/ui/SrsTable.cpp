#include "srs/ui/SrsTable.h"

#include "srs/ui/SrsTableModel.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace vlt::srs {

SrsTable::SrsTable(QWidget *parent) : QTreeView(parent)
{
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setTextElideMode(Qt::ElideRight);

    auto *copy = new QAction(tr("&Copy code", "MESS_SRS_COPY"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &SrsTable::copyCode);
    addAction(copy);
}

void SrsTable::setSystems(SrsTableModel *model)
{
    m_model = model;
    setModel(model);
    const int letter = fontMetrics().averageCharWidth();
    header()->resizeSection(SrsTableModel::Name, 50 * letter);
    header()->resizeSection(SrsTableModel::Code, 18 * letter);
    header()->resizeSection(SrsTableModel::Kind, 22 * letter);
    header()->setStretchLastSection(true);
}

int SrsTable::currentRow() const
{
    const QModelIndexList rows =
        selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

std::optional<SrsEntry> SrsTable::currentEntry() const
{
    const int row = currentRow();
    return row < 0 ? std::nullopt : std::optional(m_model->entryAt(row));
}

void SrsTable::selectRow(int row)
{
    const QModelIndex index = m_model->index(row, 0);
    if (index.isValid())
        setCurrentIndex(index);
    else
        selectionModel()->clear();
}

void SrsTable::reset()
{
    QTreeView::reset();
    Q_EMIT selectionMoved();
}

void SrsTable::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionMoved();
}

void SrsTable::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Mouse)
        openMenuAtSelection();
    else if (indexAt(event->pos()).isValid())
        openMenu(event->globalPos());
}

void SrsTable::keyPressEvent(QKeyEvent *event)
{
    // the menu key causes a context menu event; its substitute, Shift+F10, does not
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        openMenuAtSelection();
    else
        QTreeView::keyPressEvent(event);
}

void SrsTable::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_emptyText.isEmpty() || m_model->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = 2 * fontMetrics().averageCharWidth();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_emptyText);
}

void SrsTable::openMenuAtSelection()
{
    if (currentRow() < 0)
        return;
    const QModelIndex index = m_model->index(currentRow(), 0);
    scrollTo(index);
    openMenu(viewport()->mapToGlobal(visualRect(index).bottomLeft()));
}

void SrsTable::openMenu(const QPoint &globalPosition)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const DetailLink &link : m_links) {
        QString text = link.text;
        const QAction *action = menu->addAction(text.replace(u'&', QLatin1String("&&")));
        connect(action, &QAction::triggered, this, [this, link] {
            if (const std::optional<SrsEntry> entry = currentEntry())
                QDesktopServices::openUrl(detailUrl(link, *entry));
        });
    }
    menu->addSeparator();
    menu->addActions(actions());
    menu->popup(globalPosition);
}

void SrsTable::copyCode() const
{
    if (const std::optional<SrsEntry> entry = currentEntry())
        QGuiApplication::clipboard()->setText(entry->code);
}

} // namespace vlt::srs
