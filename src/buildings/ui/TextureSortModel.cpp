#include "buildings/ui/TextureSortModel.h"

#include "buildings/FileListModel.h"
#include "text/RichText.h"

namespace vlt::buildings {

namespace {

/// The system's locale, but never the C locale, which compares bytes and ignores the collator's
/// options.
QLocale collatingLocale()
{
    return QLocale() == QLocale::c() ? QLocale(QLocale::English) : QLocale();
}

} // namespace

TextureSortModel::TextureSortModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_collator(collatingLocale())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    setDynamicSortFilter(false);
}

QVariant TextureSortModel::data(const QModelIndex &index, int role) const
{
    QVariant value = QSortFilterProxyModel::data(index, role);
    if (role != Qt::ToolTipRole)
        return value;
    QStringList lines = {value.toString()};
    if (index.column() == FileListModel::FileColumn ||
        index.column() == FileListModel::FolderColumn)
        lines.prepend(index.data().toString());
    lines.removeAll(QString());
    return lines.isEmpty() ? QVariant() : text::asRichText(lines.join(u'\n'));
}

bool TextureSortModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    switch (left.column()) {
    case FileListModel::UseColumn:
        return left.data(Qt::CheckStateRole).toInt() > right.data(Qt::CheckStateRole).toInt();
    case FileListModel::HeightColumn:
        return left.data().toDouble() < right.data().toDouble();
    default:
        return m_collator.compare(left.data().toString(), right.data().toString()) < 0;
    }
}

} // namespace vlt::buildings
