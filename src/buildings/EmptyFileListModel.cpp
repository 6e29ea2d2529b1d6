#include "buildings/EmptyFileListModel.h"

#include "language/VltLanguageManager.h"

#include <QColor>

namespace vlt::buildings {

EmptyFileListModel::EmptyFileListModel(QObject *parent) : QStandardItemModel(parent)
{
    // The built-in text is French; the English dictionary has the English text.
    auto *hint = new QStandardItem(
        dico_label("MESS_NEED_TEX_IMG",
                   "Vous devez sélectionner une ou plusieurs images pour texturer les bâtiments"));
    hint->setData(QColor(0xFF, 0, 0), Qt::ForegroundRole);
    hint->setFlags(Qt::ItemIsEnabled);
    appendRow(hint);
}

} // namespace vlt::buildings
