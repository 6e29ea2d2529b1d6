#include "wizard/base/BusyWait.h"

#include <QProgressDialog>
#include <QSemaphore>
#include <QTimer>

#include <atomic>
#include <thread>

namespace vlt::wizard {

namespace {

/// Work that ends within this time ends without a dialog flashing up.
constexpr int PatienceMs = 250;
constexpr int PollMs = 20;
constexpr int UsualCharacters = 50;

std::atomic<int> runningWorks = 0;

bool waitWithDialog(QWidget *parent, const QString &text, QSemaphore &ended)
{
    QProgressDialog dialog(parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setLabelText(text);
    dialog.setMinimumWidth(dialog.fontMetrics().averageCharWidth() * UsualCharacters);
    if (parent)
        dialog.setWindowTitle(parent->window()->windowTitle());
    dialog.setRange(0, 0);
    dialog.setMinimumDuration(0);
    QTimer poll;
    bool isDone = false;
    QObject::connect(&poll, &QTimer::timeout, &dialog, [&] {
        if (!ended.tryAcquire())
            return;
        poll.stop(); // another event loop may keep exec() from returning for a while
        isDone = true;
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
    ++runningWorks;
    std::thread([work, ended] {
        work();
        ended->release();
        --runningWorks;
    }).detach();
    return ended->tryAcquire(1, PatienceMs) || waitWithDialog(parent, text, *ended);
}

bool isWorkRunning()
{
    return runningWorks > 0;
}

} // namespace vlt::wizard
