#include "wizard/base/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

namespace vlt::wizard {

namespace {

class WheelFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(watched);
        if (event->type() != QEvent::Wheel || !widget || widget->hasFocus())
            return false;
        event->ignore(); // the page scrolls instead
        return true;
    }
};

template<typename Widget>
void guard(QWidget *panel, WheelFilter *filter)
{
    for (Widget *widget : panel->findChildren<Widget *>()) {
        widget->setFocusPolicy(Qt::StrongFocus); // without Qt::WheelFocus
        widget->installEventFilter(filter);
    }
}

} // namespace

void guardAgainstStrayWheel(QWidget *panel)
{
    auto *filter = new WheelFilter(panel);
    guard<QAbstractSpinBox>(panel, filter);
    guard<QComboBox>(panel, filter);
    guard<QSlider>(panel, filter);
}

} // namespace vlt::wizard
