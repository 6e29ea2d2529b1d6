#include "tables/RoleModel.h"

#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "text/RichText.h"

#include <algorithm>

namespace vlt::tables {

namespace {

/// Internal id of the indexes of entries; their children have the number of the entry after it.
constexpr quintptr EntryId = 0;

bool isEntry(const QModelIndex &index)
{
    return index.internalId() == EntryId;
}

QString noColumn()
{
    return dico_label("MESS_NO_COLUMN", "none");
}

/// The texts of all columns of an entry without those that are missing.
QStringList namesOf(const RoleEntry &entry)
{
    QStringList names;
    for (const RoleColumn &column : entry.columns) {
        if (!column.name.isEmpty())
            names << column.name;
    }
    return names;
}

RoleColumn firstColumn(const RoleEntry &entry)
{
    const auto named =
        std::find_if(entry.columns.begin(), entry.columns.end(),
                     [](const RoleColumn &column) { return !column.name.isEmpty(); });
    return named == entry.columns.end() ? RoleColumn() : *named;
}

QString evidenceOf(const RoleEntry &entry)
{
    const qsizetype count = namesOf(entry).size();
    return count > 1 ? dico_label("MESS_ROLE_COLUMNS", "%1 columns").arg(count)
                     : language::readerText(firstColumn(entry).evidence);
}

} // namespace

void RoleModel::setTable(const UnderstoodTable &table)
{
    beginResetModel();
    m_table = table;
    m_entries = roleEntries(table);
    endResetModel();
}

int RoleModel::columnsFound() const
{
    QStringList names;
    for (const RoleEntry &entry : m_entries)
        names += namesOf(entry);
    names.removeDuplicates();
    return static_cast<int>(names.size());
}

const RoleEntry &RoleModel::entryOf(const QModelIndex &index) const
{
    return m_entries[isEntry(index) ? index.row() : static_cast<qsizetype>(index.internalId()) - 1];
}

bool RoleModel::offersRecognised(const QModelIndex &index) const
{
    return isEntry(index) && entryOf(index).isStated;
}

QStringList RoleModel::choices(const QModelIndex &index) const
{
    QStringList texts;
    if (offersRecognised(index))
        texts << dico_label("MESS_AS_RECOGNISED", "(as recognised)");
    texts << noColumn();
    for (const geodata::TableColumn &column : m_table.excerpt.columns)
        texts << column.name;
    return texts;
}

/// The index of what is chosen now in choices().
int RoleModel::choiceOf(const QModelIndex &index) const
{
    const RoleEntry &entry = entryOf(index);
    const QString name =
        isEntry(index) ? firstColumn(entry).name : entry.columns.value(index.row()).name;
    const int none = offersRecognised(index) ? 1 : 0;
    if (name.isEmpty())
        return none;
    const QList<geodata::TableColumn> &columns = m_table.excerpt.columns;
    const auto found =
        std::find_if(columns.begin(), columns.end(),
                     [&](const geodata::TableColumn &column) { return column.name == name; });
    return found == columns.end() ? none : none + 1 + static_cast<int>(found - columns.begin());
}

QModelIndex RoleModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : EntryId);
}

QModelIndex RoleModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || isEntry(child))
        return {};
    return createIndex(static_cast<int>(child.internalId()) - 1, 0, EntryId);
}

int RoleModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_entries.size());
    return isEntry(parent) && parent.column() == 0
               ? static_cast<int>(entryOf(parent).partNames.size())
               : 0;
}

int RoleModel::columnCount(const QModelIndex &parent) const
{
    static_cast<void>(parent);
    return ColumnCount;
}

QVariant RoleModel::text(const QModelIndex &index) const
{
    const RoleEntry &entry = entryOf(index);
    const RoleColumn column =
        isEntry(index) ? firstColumn(entry) : entry.columns.value(index.row());
    switch (index.column()) {
    case Role:
        return isEntry(index) ? entry.text : entry.partNames.value(index.row());
    case Name: {
        const QString names =
            isEntry(index) ? namesOf(entry).join(QStringLiteral(", ")) : column.name;
        return names.isEmpty() ? noColumn() : names;
    }
    case Evidence:
        return isEntry(index) ? evidenceOf(entry) : language::readerText(column.evidence);
    default:
        return column.samples.join(QStringLiteral("  \u2022  "));
    }
}

QVariant RoleModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::ToolTipRole:
        return text::asRichText(text(index).toString());
    case Qt::AccessibleTextRole:
        return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString() +
               QStringLiteral(": ") + text(index).toString();
    case Qt::EditRole:
        return choiceOf(index);
    case IsFoundRole:
        return isEntry(index) ? entryOf(index).isFound()
                              : !entryOf(index).columns.value(index.row()).name.isEmpty();
    case IsStatedRole:
        return entryOf(index).isStated;
    default:
        return {};
    }
}

bool RoleModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int choice = value.toInt();
    if (role != Qt::EditRole || index.column() != Name || choice < 0 ||
        choice >= choices(index).size() || choice == choiceOf(index))
        return false;
    const RoleEntry &entry = entryOf(index);
    const int none = offersRecognised(index) ? 1 : 0;
    if (choice < none)
        Q_EMIT mappingChosen(withRecognised(m_table.mapping, entry));
    else
        Q_EMIT mappingChosen(withColumn(
            m_table.mapping, entry, isEntry(index) ? -1 : index.row(),
            choice == none ? QString() : m_table.excerpt.columns[choice - none - 1].name));
    return true;
}

QVariant RoleModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Role:
        return dico_label("MESS_MEANING", "Meaning");
    case Name:
        return dico_label("MESS_TABLE_COLUMN", "Column of the table");
    case Evidence:
        return dico_label("MESS_EVIDENCE", "Evidence");
    default:
        return dico_label("MESS_SAMPLES", "Values");
    }
}

Qt::ItemFlags RoleModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.column() == Name ? flags | Qt::ItemIsEditable : flags;
}

} // namespace vlt::tables
