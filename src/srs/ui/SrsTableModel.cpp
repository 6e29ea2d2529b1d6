#include "srs/ui/SrsTableModel.h"

#include "text/RichText.h"

#include <QFont>

namespace vlt::srs {

using geodata::SrsKind;

int SrsTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString SrsTableModel::kindText(SrsKind kind)
{
    switch (kind) {
    case SrsKind::Geographic2D:
        return tr("Geographic 2D", "MESS_SRS_KIND_GEOGRAPHIC_2D");
    case SrsKind::Geographic3D:
        return tr("Geographic 3D", "MESS_SRS_KIND_GEOGRAPHIC_3D");
    case SrsKind::Projected:
        return tr("Projected", "MESS_SRS_KIND_PROJECTED");
    case SrsKind::Compound:
        return tr("Compound", "MESS_SRS_KIND_COMPOUND");
    case SrsKind::Other:
        break;
    }
    return tr("Other", "MESS_SRS_KIND_OTHER");
}

QString SrsTableModel::textOf(const QModelIndex &index) const
{
    const geodata::SrsRecord *system = systemAt(index.row());
    switch (index.column()) {
    case Name: {
        const SrsEntry entry = entryAt(index.row());
        return entry.name.isEmpty() ? entry.alias : entry.name;
    }
    case Code:
        return entryAt(index.row()).code.simplified();
    case Kind:
        return system ? kindText(system->kind) : QString();
    default:
        return system ? system->area : QString();
    }
}

QVariant SrsTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return textOf(index);
    case Qt::ToolTipRole: // only rich text is wrapped; the text in it is escaped
        return vlt::text::asRichText(textOf(index));
    case Qt::FontRole: {
        const geodata::SrsRecord *system = systemAt(index.row());
        if (!system || !system->isDeprecated)
            return {};
        QFont italic;
        italic.setItalic(true);
        return italic;
    }
    default:
        return {};
    }
}

QVariant SrsTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Name", "MESS_SRS_COLUMN_NAME");
    case Code:
        return tr("Code", "MESS_SRS_COLUMN_CODE");
    case Kind:
        return tr("Kind", "MESS_SRS_COLUMN_KIND");
    case Area:
        return tr("Area of use", "MESS_SRS_COLUMN_AREA");
    default:
        return {};
    }
}

} // namespace vlt::srs
