#include "wizard/base/BusyWait.h"

#include <QProgressDialog>
#include <QSemaphore>
#include <QThreadPool>
#include <QTimer>

namespace vlt::wizard {

namespace {

/// Work that ends within this time ends without a dialog flashing up.
constexpr int PatienceMs = 250;
constexpr int PollMs = 20;

bool waitWithDialog(QWidget *parent, const QString &text, QSemaphore &ended)
{
    QProgressDialog dialog(parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setLabelText(text);
    dialog.setRange(0, 0);
    dialog.setMinimumDuration(0);
    QTimer poll;
    bool isDone = false;
    QObject::connect(&poll, &QTimer::timeout, &dialog, [&] {
        isDone = ended.tryAcquire();
        if (isDone)
            dialog.accept();
    });
    poll.start(PollMs);
    dialog.exec();
    return isDone;
}

} // namespace

bool waitFor(QWidget *parent, const QString &text, const std::function<void()> &work)
{
    const auto ended = std::make_shared<QSemaphore>();
    QThreadPool::globalInstance()->start([work, ended] {
        work();
        ended->release();
    });
    return ended->tryAcquire(1, PatienceMs) || waitWithDialog(parent, text, *ended);
}

} // namespace vlt::wizard
