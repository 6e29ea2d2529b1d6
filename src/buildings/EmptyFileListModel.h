#pragma once

#include <QStandardItemModel>

namespace vlt::buildings {

/// Stands in the table of textures while there is none: one red cell that says what to do.
class EmptyFileListModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit EmptyFileListModel(QObject *parent = nullptr);
};

} // namespace vlt::buildings
