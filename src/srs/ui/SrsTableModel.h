#pragma once

#include "geodata/SrsCatalogue.h"
#include "srs/SrsEntry.h"

#include <QAbstractTableModel>

namespace vlt::srs {

/// Coordinate systems as rows: label, code, kind and area of use.
class SrsTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Code, Kind, Area, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// The entry for choosing a row.
    virtual SrsEntry entryAt(int row) const = 0;

    /// The record of a row in the catalogue; null if the system is not in it.
    virtual const geodata::SrsRecord *systemAt(int row) const = 0;

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Name of a kind in the chosen language.
    static QString kindText(geodata::SrsKind kind);

private:
    QString textOf(const QModelIndex &index) const;
};

} // namespace vlt::srs
