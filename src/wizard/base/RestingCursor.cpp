#include "wizard/base/RestingCursor.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace vlt::wizard {

namespace {

constexpr int RestAfterMs = 5000;

class CursorRest : public QObject
{
public:
    explicit CursorRest(QObject *owner)
        : QObject(owner)
        , m_flashTime(QApplication::cursorFlashTime())
    {
        m_idle.setSingleShot(true);
        m_idle.setInterval(RestAfterMs);
        m_idle.callOnTimeout(this, [] { QApplication::setCursorFlashTime(0); });
        m_idle.start();
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::KeyPress && type != QEvent::MouseButtonPress)
            return false;
        if (!m_idle.isActive())
            QApplication::setCursorFlashTime(m_flashTime);
        m_idle.start();
        return false;
    }

private:
    QTimer m_idle;
    int m_flashTime; ///< setting of the desktop
};

} // namespace

void restTextCursors(QObject *owner)
{
    new CursorRest(owner);
}

} // namespace vlt::wizard
