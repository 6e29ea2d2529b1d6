#include "wizard/frame/LayerKindButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int Padding = 12;
constexpr int Gap = 16; ///< between icon and text, in pixels
constexpr int LineGap = 6;
constexpr int DefaultCharacters = 60;
constexpr int MinCharacters = 30;
constexpr double TitleScale = 1.15;
constexpr int TextFlags = Qt::AlignLeft | Qt::TextWordWrap;

} // namespace

QFont LayerKindButton::titleFont() const
{
    QFont title = font();
    title.setBold(true);
    if (title.pointSizeF() > 0)
        title.setPointSizeF(title.pointSizeF() * TitleScale);
    return title;
}

QSize LayerKindButton::textSize(int width) const
{
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    const QRect title =
        QFontMetrics(titleFont()).boundingRect(room, TextFlags | Qt::TextShowMnemonic, text());
    const QRect description = fontMetrics().boundingRect(room, TextFlags, this->description());
    return {qMax(title.width(), description.width()),
            title.height() + LineGap + description.height()};
}

int LayerKindButton::heightForWidth(int width) const
{
    const int room = width - iconSize().width() - Gap - 2 * Padding;
    return qMax(iconSize().height(), textSize(qMax(room, 1)).height()) + 2 * Padding;
}

QSize LayerKindButton::sizeHint() const
{
    const int width = iconSize().width() + Gap + 2 * Padding +
                      DefaultCharacters * fontMetrics().averageCharWidth();
    return {width, heightForWidth(width)};
}

QSize LayerKindButton::minimumSizeHint() const
{
    const int width =
        iconSize().width() + Gap + 2 * Padding + MinCharacters * fontMetrics().averageCharWidth();
    return {width, iconSize().height() + 2 * Padding};
}

void LayerKindButton::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton frame;
    initStyleOption(&frame);
    frame.text.clear();
    frame.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButton, frame);

    const QRect room = rect().adjusted(Padding, Padding, -Padding, -Padding);
    QRect picture(room.topLeft(), iconSize());
    picture.moveTop(room.center().y() - iconSize().height() / 2);
    QRect words = room.adjusted(iconSize().width() + Gap, 0, 0, 0);
    words.setHeight(textSize(words.width()).height());
    words.moveTop(room.center().y() - words.height() / 2);

    icon().paint(&painter, QStyle::visualRect(layoutDirection(), rect(), picture), Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QRect shown = QStyle::visualRect(layoutDirection(), rect(), words);
    const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                      Qt::TextWordWrap;
    painter.setFont(titleFont());
    painter.drawItemText(shown, flags | Qt::TextShowMnemonic, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
    painter.setFont(font());
    painter.drawItemText(shown, flags | Qt::AlignBottom, palette(), isEnabled(), description(),
                         QPalette::ButtonText);
}
