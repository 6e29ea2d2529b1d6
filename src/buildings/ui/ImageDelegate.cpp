#include "buildings/ui/ImageDelegate.h"

#include "buildings/ui/TextureSortModel.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace vlt::buildings {

namespace {

constexpr int MarginPx = 3;
constexpr int GapPx = 8;
constexpr int SpacePx = 12; ///< of a row, beside its lines of text
constexpr int SignPx = 16;
constexpr int LineCount = 2;

QStyle *styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

} // namespace

int ImageDelegate::rowHeightPx(const QFontMetrics &font)
{
    return LineCount * font.height() + SpacePx + 2 * MarginPx;
}

void drawPicture(QPainter &painter, const QRect &rect, const QImage &picture, bool hasProblem,
                 const QStyleOptionViewItem &option)
{
    if (picture.isNull()) {
        painter.setPen(option.palette.color(QPalette::Mid));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    } else {
        QRect fitted({}, picture.size().scaled(rect.size(), Qt::KeepAspectRatio));
        fitted.moveCenter(rect.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(fitted, picture);
    }
    if (hasProblem) {
        QRect sign(0, 0, SignPx, SignPx);
        if (picture.isNull())
            sign.moveCenter(rect.center());
        else
            sign.moveBottomRight(rect.bottomRight());
        styleOf(option)->standardIcon(QStyle::SP_MessageBoxWarning).paint(&painter, sign);
    }
}

void ImageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString name = cell.text;
    cell.text.clear();
    cell.icon = {};
    cell.features &= ~QStyleOptionViewItem::HasDecoration;
    styleOf(cell)->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    painter->save();
    const QRect inner = cell.rect.adjusted(MarginPx, MarginPx, -MarginPx, -MarginPx);
    const int side = inner.height();
    const bool isLeftToRight = cell.direction == Qt::LeftToRight;
    const QRect place(isLeftToRight ? inner.left() : inner.right() - side, inner.top(), side, side);
    drawPicture(*painter, place, index.data(TextureSortModel::PictureRole).value<QImage>(),
                index.data(TextureSortModel::HasProblemRole).toBool(), cell);

    const QRect text = isLeftToRight ? inner.adjusted(side + GapPx, 0, 0, 0)
                                     : inner.adjusted(0, 0, -side - GapPx, 0);
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const auto draw = [&](int line, const QString &words, QPalette::ColorRole role) {
        QRect at = text;
        at.setTop(text.center().y() + (line - 1) * cell.fontMetrics.height());
        at.setHeight(cell.fontMetrics.height());
        painter->setPen(
            cell.palette.color(QPalette::Active, isSelected ? QPalette::HighlightedText : role));
        painter->drawText(at, Qt::AlignLeading | Qt::AlignVCenter,
                          cell.fontMetrics.elidedText(words, Qt::ElideRight, at.width()));
    };
    painter->setFont(cell.font);
    draw(0, name, QPalette::Text);
    draw(1, index.data(TextureSortModel::NoteRole).toString(), QPalette::PlaceholderText);
    painter->restore();
}

QSize ImageDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int height = rowHeightPx(option.fontMetrics);
    const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
    return {height + GapPx + text + 2 * MarginPx, height};
}

} // namespace vlt::buildings
