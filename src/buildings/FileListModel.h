#pragma once

#include "buildings/FileEntry.h"

#include <QAbstractTableModel>
#include <QList>

namespace vlt::buildings {

/// The texture images as a table: used or not, file, height, folder. The rows are the images that
/// match a filter.
class FileListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { UseColumn, FileColumn, HeightColumn, FolderColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Replaces the list; the filter stays.
    void setEntries(QList<FileEntry> entries);

    /// All images, including those that do not match the filter.
    const QList<FileEntry> &entries() const { return m_entries; }
    int selectedCount() const { return m_selected; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Ticks or unticks several rows together and emits updated() once.
    void setUsed(const QModelIndexList &rows, bool used);

public Q_SLOTS:
    /// Shows the images whose file name, folder, description or height matches; an empty pattern
    /// shows all.
    void setFilter(const QString &pattern);

Q_SIGNALS:
    /// The list, the filter or a tick has changed; the numbers of images, of rows and of ticked
    /// images.
    void updated(int total, int matching, int selected);

private:
    void showMatching();
    void countSelected();
    void emitCounts();

    QList<FileEntry> m_entries;
    QList<int> m_rows; ///< index in m_entries of each row
    int m_selected = 0;
    QString m_filter;
};

} // namespace vlt::buildings
