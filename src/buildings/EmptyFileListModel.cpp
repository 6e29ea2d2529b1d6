#include "buildings/EmptyFileListModel.h"

#include "language/VltLanguageManager.h"

#include <QColor>

namespace vlt::buildings {

namespace {

const QColor HintColor(0xFF, 0, 0);

} // namespace

int EmptyFileListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

int EmptyFileListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant EmptyFileListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        // French by default; the English dictionary has the English text
        return dico_label("MESS_NEED_TEX_IMG", "Vous devez sélectionner une ou plusieurs images "
                                               "pour texturer les bâtiments");
    case Qt::ForegroundRole:
        return HintColor;
    default:
        return {};
    }
}

Qt::ItemFlags EmptyFileListModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
}

} // namespace vlt::buildings
