#include "wizard/base/RowsAsText.h"

#include <QTableView>

#include <algorithm>
#include <numeric>

namespace vlt::wizard {

namespace {

/// One line of texts; tabs and line feeds in a text are replaced, because they would split it.
template<typename TextOf>
QString line(int columns, const TextOf &textOf)
{
    QStringList texts;
    for (int column = 0; column < columns; ++column)
        texts += textOf(column).simplified();
    return texts.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

/// The rows to copy, in the order of the table.
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

QString cellText(const QModelIndex &cell, QLocale locale)
{
    const QVariant shown = cell.data();
    if (!shown.isValid())
        return cell.data(Qt::CheckStateRole).toInt() == Qt::Checked ? QStringLiteral("x")
                                                                    : QString();
    if (shown.userType() != QMetaType::Double)
        return shown.toString();
    locale.setNumberOptions(QLocale::OmitGroupSeparator); // other programs may not read them
    return locale.toString(shown.toDouble(), 'g', QLocale::FloatingPointShortest);
}

} // namespace

QString rowsAsText(const QTableView &table)
{
    const QAbstractItemModel &model = *table.model();
    const int columns = model.columnCount();
    QString text = line(
        columns, [&](int column) { return model.headerData(column, Qt::Horizontal).toString(); });
    for (const int row : rowsToCopy(table))
        text += line(columns, [&](int column) {
            return cellText(model.index(row, column), table.locale());
        });
    return text;
}

} // namespace vlt::wizard
