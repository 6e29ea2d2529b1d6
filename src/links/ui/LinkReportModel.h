#pragma once

#include "geodata/LinkCheck.h"

#include <QAbstractTableModel>

namespace vlt::links {

/// The links of a table, one per row: the name, the clearance of the path and values of the table.
/// Sorts by the values, not by their texts; the selection stays.
class LinkReportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Row, Name, ClearanceStatus, Worst, EndA, EndB, Length, Frequency, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Sets the links, in the order of the file; they are shown in the last requested order. A list
    /// of the same size is taken as the same links with a new clearance, so clear the model before
    /// the links of another table.
    void setLinks(const QList<geodata::LinkReport> &links);

    const geodata::LinkReport &link(int row) const { return m_links[row]; }

    /// The first row whose link has a class of clearance; -1 if none has.
    int firstOf(linkpath::ClearanceStatus status) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    QVariant text(const geodata::LinkReport &link, int column) const;
    QVariant toolTip(const geodata::LinkReport &link, int column) const;
    void arrange(const QList<geodata::LinkReport> &links);
    void sortLinks();

    QList<geodata::LinkReport> m_links;
    int m_sortColumn = ClearanceStatus;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace vlt::links
