#pragma once

#include "srs/DetailLinks.h"
#include "srs/SrsEntry.h"

#include <QTreeView>

#include <optional>

namespace vlt::srs {

class SrsTableModel;

/// A table for choosing a coordinate system. Its context menu has links to pages with details of
/// the selected system, copies its code, and has the actions that were added to the table.
class SrsTable : public QTreeView
{
    Q_OBJECT

public:
    explicit SrsTable(QWidget *parent = nullptr);

    /// Sets the model, which must exist as long as the table.
    void setSystems(SrsTableModel *model);
    const SrsTableModel *systems() const { return m_model; }

    /// Sets the text that is shown in the table while it has no rows.
    void setEmptyText(const QString &text) { m_emptyText = text; }

    void setDetailLinks(const QList<DetailLink> &links) { m_links = links; }

    /// The selected row; -1 for none.
    int currentRow() const;
    std::optional<SrsEntry> currentEntry() const;

    /// Selects a row and makes it visible; clears the selection for a row that does not exist.
    void selectRow(int row);

    void reset() override;

Q_SIGNALS:
    /// The selected row changed; there may be none now.
    void selectionMoved();

protected:
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void openMenuAtSelection();
    void openMenu(const QPoint &globalPosition);
    void copyCode() const;

    SrsTableModel *m_model = nullptr;
    QList<DetailLink> m_links;
    QString m_emptyText;
};

} // namespace vlt::srs
