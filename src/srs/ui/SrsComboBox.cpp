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

/// Maximum lengths of definitions; longer ones are cut.
constexpr int PopupCharacters = 90;
constexpr qsizetype ToolTipCharacters = 800;

} // namespace

SrsComboBox::SrsComboBox(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus); // by default, the wheel would give it the focus
}

void SrsComboBox::showPopup()
{
    const QRect available = screen()->availableGeometry();
    const int letter = fontMetrics().averageCharWidth();
    const int readable =
        view()->sizeHintForColumn(0) + 2 * letter + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::min({readable, PopupCharacters * letter, available.width()}));
    QComboBox::showPopup();
    // After Escape, the list keeps its last row, and Return would choose that row.
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn(), rootModelIndex()));

    QWidget *popup = view()->window();
    const int beyond = popup->geometry().right() - available.right();
    if (popup != window() && beyond > 0)
        popup->move(std::max(available.left(), popup->x() - beyond), popup->y());
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
    // queued, because the click that follows would remove the selection
    if (isEditable() && event->reason() == Qt::MouseFocusReason)
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
    event->ignore(); // a widget around the box may scroll
}

/// Whether a key would change the row of the closed box.
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
    case Qt::Key_Space: // the base class opens the list
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
