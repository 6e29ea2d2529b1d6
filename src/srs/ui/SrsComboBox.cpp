#include "srs/ui/SrsComboBox.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace {

/// Longer definitions are cut in the popup and in the tool tip.
constexpr int PopupCharacters = 90;
constexpr qsizetype ToolTipCharacters = 800;

} // namespace

SrsComboBox::SrsComboBox(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // the default takes the focus, and the turn, from any wheel
}

void SrsComboBox::showPopup()
{
    const QRect place = screen()->availableGeometry();
    const int letter = fontMetrics().averageCharWidth();
    const int readable =
        view()->sizeHintForColumn(0) + 2 * letter + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::min({readable, PopupCharacters * letter, place.width()}));
    QComboBox::showPopup();

    QWidget *popup = view()->window();
    const int beyond = popup->geometry().right() - place.right();
    if (popup != window() && beyond > 0)
        popup->move(std::max(place.left(), popup->x() - beyond), popup->y());
}

bool SrsComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), toolTipText(), this);
    return true;
}

void SrsComboBox::focusInEvent(QFocusEvent *event)
{
    QComboBox::focusInEvent(event);
    if (isEditable() &&
        event->reason() == Qt::MouseFocusReason) // the click itself is still to come
        QMetaObject::invokeMethod(lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
}

void SrsComboBox::keyPressEvent(QKeyEvent *event)
{
    const bool ends = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool endsEditing = ends && isEditable();
    QComboBox::keyPressEvent(event);
    if (endsEditing)
        event->accept();
}

void SrsComboBox::wheelEvent(QWheelEvent *event)
{
    const bool down = event->angleDelta().y() < 0;
    if (!hasFocus())
        event->ignore();
    else if (down && itemData(currentIndex() + 1, OpensDialogRole).toBool())
        event->accept();
    else
        QComboBox::wheelEvent(event);
}

QString SrsComboBox::toolTipText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int width =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();

    QStringList lines;
    if (fontMetrics().horizontalAdvance(currentText()) >= width)
        lines += currentText();
    const QString definition = isEditable() ? QString() : currentData(DefinitionRole).toString();
    if (!definition.isEmpty())
        lines += definition;
    QString text = lines.join(QLatin1Char('\n'));
    if (text.size() > ToolTipCharacters)
        text = text.left(ToolTipCharacters) + QChar(0x2026);
    return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}
