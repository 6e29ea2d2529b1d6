#include "srs/ui/SrsComboBox.h"

#include <QAbstractItemView>
#include <QCoreApplication>
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
    // The list may still stand where it was left by Escape, and Return would take that row.
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn(), rootModelIndex()));

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
    if (goesToAnotherRow(*event)) {
        showPopup();
        QCoreApplication::sendEvent(view(), event);
        return;
    }
    const bool ends = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool endsEditing = ends && isEditable();
    QComboBox::keyPressEvent(event);
    if (endsEditing)
        event->accept();
}

void SrsComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // whatever lies around the box may scroll
}

/// Whether a key would choose another row of the closed box.
bool SrsComboBox::goesToAnotherRow(const QKeyEvent &event) const
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        return !isEditable();
    case Qt::Key_Space: // opens the list by itself
        return false;
    default:
        return !isEditable() && !event.text().isEmpty() && event.text().at(0).isPrint();
    }
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
    const QString definition = isEditable() ? m_editTip : currentData(DefinitionRole).toString();
    if (!definition.isEmpty())
        lines += definition;
    QString text = lines.join(QLatin1Char('\n'));
    if (text.size() > ToolTipCharacters)
        text = text.left(ToolTipCharacters) + QChar(0x2026);
    return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}
