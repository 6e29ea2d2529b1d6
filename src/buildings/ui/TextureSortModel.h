#pragma once

#include "geodata/PolygonSource.h"

#include <QCollator>
#include <QSortFilterProxyModel>

#include <optional>

namespace vlt::buildings {

class ImagePreviews;

/// The rows of a FileListModel, sorted by a column: heights as numbers, names and folders in
/// natural order of the numbers in them, images in use together. An edited row keeps its position.
/// Texts that may be cut are tool tips too. The column of files has what is known of each image.
class TextureSortModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// Of the column of files.
    enum Role {
        PictureRole = Qt::UserRole, ///< QImage; null as long as it is not read
        NoteRole,                   ///< where the image lies, or why it cannot be used
        HasProblemRole              ///< bool: it cannot be used
    };

    /// @param previews  must outlive the model
    explicit TextureSortModel(ImagePreviews &previews, QObject *parent = nullptr);

    /// Sets the buildings that the images may cover.
    void setBuildings(std::optional<geodata::PolygonLayer> layer,
                      std::optional<geodata::Extent> extent);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QVariant ofImage(const QModelIndex &index, int role) const;

    QCollator m_collator;
    ImagePreviews &m_previews;
    std::optional<geodata::PolygonLayer> m_layer;
    std::optional<geodata::Extent> m_extent; ///< of m_layer
};

} // namespace vlt::buildings
