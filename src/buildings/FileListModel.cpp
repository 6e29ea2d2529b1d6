#include "buildings/FileListModel.h"

#include "buildings/TextureFilter.h"

#include <algorithm>
#include <cmath>

namespace vlt::buildings {

namespace {

QString fileText(const FileEntry &entry)
{
    return entry.description.isEmpty()
               ? entry.fileName()
               : entry.fileName() + QStringLiteral(" (%1)").arg(entry.description);
}

QVariant alignment(int column)
{
    switch (column) {
    case FileListModel::FileColumn:
    case FileListModel::FolderColumn:
        return (Qt::AlignLeft | Qt::AlignVCenter).toInt();
    case FileListModel::HeightColumn:
        return (Qt::AlignRight | Qt::AlignVCenter).toInt();
    default:
        return {};
    }
}

} // namespace

void FileListModel::setEntries(QList<FileEntry> entries)
{
    m_entries = std::move(entries);
    countSelected();
    showMatching();
}

void FileListModel::setFilter(const QString &pattern)
{
    m_filter = pattern;
    showMatching();
}

void FileListModel::showMatching()
{
    beginResetModel();
    m_rows = matchingTextures(m_entries, m_filter);
    endResetModel();
    emitCounts();
}

void FileListModel::countSelected()
{
    m_selected = static_cast<int>(std::count_if(m_entries.cbegin(), m_entries.cend(),
                                                [](const FileEntry &entry) { return entry.used; }));
}

void FileListModel::emitCounts()
{
    Q_EMIT updated(static_cast<int>(m_entries.size()), static_cast<int>(m_rows.size()), m_selected);
}

int FileListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FileListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FileListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const FileEntry &entry = m_entries.at(m_rows.at(index.row()));
    const int column = index.column();
    switch (role) {
    case Qt::CheckStateRole:
        return column == UseColumn ? QVariant(entry.used ? Qt::Checked : Qt::Unchecked)
                                   : QVariant();
    case Qt::TextAlignmentRole:
        return alignment(column);
    case Qt::ToolTipRole:
        return column == FileColumn ? QVariant(entry.file.filePath()) : QVariant();
    case Qt::EditRole:
        if (column == UseColumn)
            return entry.used;
        [[fallthrough]];
    case Qt::DisplayRole:
        if (column == FileColumn)
            return fileText(entry);
        if (column == HeightColumn)
            return entry.height;
        return column == FolderColumn ? QVariant(entry.shortName) : QVariant();
    default:
        return {};
    }
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case UseColumn:
        return tr("Use", "MESS_USE");
    case FileColumn:
        return tr("File", "MESS_FICHIER");
    case HeightColumn:
        return tr("Height", "MESS_HAUTEUR");
    case FolderColumn:
        return tr("Directory", "MESS_DOSSIER");
    default:
        return {};
    }
}

bool FileListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int column = index.column();
    if (!index.isValid() || (column != UseColumn && column != HeightColumn) ||
        (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    FileEntry &entry = m_entries[m_rows.at(index.row())];
    if (column == HeightColumn) {
        bool isNumber = false;
        const double height = value.toString().toDouble(&isNumber);
        if (!isNumber || !std::isfinite(height))
            return false;
        entry.height = height;
    } else {
        entry.used = role == Qt::CheckStateRole ? value.toInt() == Qt::Checked : value.toBool();
        countSelected();
        emitCounts();
    }
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags FileListModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == UseColumn)
        flags |= Qt::ItemIsUserCheckable;
    if (index.isValid() && index.column() == HeightColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

void FileListModel::setUsed(const QModelIndexList &rows, bool used)
{
    int first = rowCount();
    int last = -1;
    for (const QModelIndex &row : rows) {
        m_entries[m_rows.at(row.row())].used = used;
        first = std::min(first, row.row());
        last = std::max(last, row.row());
    }
    if (last < 0)
        return;
    countSelected();
    Q_EMIT dataChanged(index(first, UseColumn), index(last, UseColumn));
    emitCounts();
}

} // namespace vlt::buildings
