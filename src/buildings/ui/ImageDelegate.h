#pragma once

#include <QStyledItemDelegate>

namespace vlt::buildings {

/// Draws the cell of an image: its small picture, its name and below it, in a second line, what is
/// known of it. A sign marks an image that cannot be used.
class ImageDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Height of a row with two lines of text.
    static int rowHeightPx(const QFontMetrics &font);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

/// Draws a small picture in the middle of a rectangle, or a frame until there is one, and the sign
/// of a problem in its corner.
void drawPicture(QPainter &painter, const QRect &rect, const QImage &picture, bool hasProblem,
                 const QStyleOptionViewItem &option);

} // namespace vlt::buildings
