#pragma once

#include "geodata/LinkCheck.h"

#include <QAbstractTableModel>
#include <QLocale>

namespace vlt::links {

/// The links of a table, one a row: the name, what was found of the path, and what the table tells.
/// Sorts by what the texts stand for; what is selected stays selected.
class LinkReportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Row, Name, Verdict, Worst, EndA, EndB, Length, Frequency, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes the links in the order of the file; they are shown in the order last asked for. As
    /// many as before are the same links, judged again. Another table's come after none.
    void setLinks(const QList<geodata::LinkReport> &links);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    QVariant text(const geodata::LinkReport &link, int column) const;
    QString worstText(const linkpath::WorstPoint &worst) const;
    QVariant toolTip(const geodata::LinkReport &link, int column) const;
    void arrange(const QList<geodata::LinkReport> &links);
    void sortLinks();

    QLocale m_locale;
    QList<geodata::LinkReport> m_links;
    int m_sortColumn = Row;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace vlt::links
