#pragma once

#include <QStandardItemModel>

namespace vlt::buildings {

/// The model of the table of textures as long as it is empty: one red cell with a hint.
class EmptyFileListModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit EmptyFileListModel(QObject *parent = nullptr);
};

} // namespace vlt::buildings
