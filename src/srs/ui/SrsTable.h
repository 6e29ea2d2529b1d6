#pragma once

#include "srs/DetailLinks.h"
#include "srs/SrsEntry.h"

#include <QTreeView>

#include <optional>

namespace vlt::srs {

class SrsTableModel;

/// Coordinate systems to choose one from. Its context menu offers pages that tell more about the
/// selected one, its code for the clipboard, and the actions that were added to the table.
class SrsTable : public QTreeView
{
    Q_OBJECT

public:
    explicit SrsTable(QWidget *parent = nullptr);

    /// Shows the rows of a model that lives at least as long as the table.
    void setSystems(SrsTableModel *model);
    const SrsTableModel *systems() const { return m_model; }

    /// Text that stands in the table while it has no row.
    void setEmptyText(const QString &text) { m_emptyText = text; }

    void setDetailLinks(const QList<DetailLink> &links) { m_links = links; }

    /// The selected row; -1 for none.
    int currentRow() const;
    std::optional<SrsEntry> currentEntry() const;

    /// Selects a row and shows it; none for a row that does not exist.
    void selectRow(int row);

    void reset() override;

Q_SIGNALS:
    /// Another row is selected, or none any more.
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
