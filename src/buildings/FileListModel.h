#pragma once

#include "buildings/FileEntry.h"

#include <QAbstractTableModel>
#include <QList>

namespace vlt::buildings {

/// The texture images as a table: used or not, file, height, folder. A filter decides which of
/// them are rows.
class FileListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { UseColumn, FileColumn, HeightColumn, FolderColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Replaces the list; the filter stays.
    void setEntries(QList<FileEntry> entries);

    /// All images, whatever the filter shows.
    const QList<FileEntry> &entries() const { return m_entries; }
    int selectedCount() const { return m_selected; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Ticks or unticks several rows at once; updated() follows once.
    void setUsed(const QModelIndexList &rows, bool used);

public Q_SLOTS:
    /// Shows the images whose file name, folder, description or height matches; all of them where
    /// the pattern is empty.
    void setFilter(const QString &pattern);

Q_SIGNALS:
    /// After every change of the list, the filter or a tick: images, rows, ticked images.
    void updated(int total, int matching, int selected);

private:
    void showMatching();
    void countSelected();
    void tellCounts();

    QList<FileEntry> m_entries;
    QList<int> m_rows; ///< place in m_entries of each row
    int m_selected = 0;
    QString m_filter;
};

} // namespace vlt::buildings
