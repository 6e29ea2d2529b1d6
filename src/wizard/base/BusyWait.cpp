#include "wizard/base/BusyWait.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProgressBar>
#include <QProgressDialog>
#include <QSemaphore>
#include <QTimer>

#include <atomic>
#include <thread>

namespace vlt::wizard {

namespace {

/// Work that ends within this time shows no dialog.
constexpr int PatienceMs = 250;
constexpr int PollMs = 20;
constexpr int DefaultCharacters = 50;
constexpr double PerCent = 100;

std::atomic<int> runningWorks = 0;

/// Data that the working thread and the waiting thread share.
struct Job
{
    QSemaphore ended;
    std::atomic<bool> stopped = false;
    std::atomic<double> share = 0;
};

std::shared_ptr<Job> start(const std::function<void(Job &)> &work)
{
    auto job = std::make_shared<Job>();
    ++runningWorks;
    std::thread([work, job] {
        work(*job);
        job->ended.release();
        --runningWorks;
    }).detach();
    return job;
}

/// @param bar  updated directly, because the dialog's setValue() would run events inside the
///             timer's slot
bool waitWithDialog(QWidget *parent, const QString &text, QProgressBar *bar, Job &job)
{
    QProgressDialog dialog(parent);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setLabelText(text);
    dialog.setMinimumWidth(dialog.fontMetrics().averageCharWidth() * DefaultCharacters);
    if (parent)
        dialog.setWindowTitle(parent->window()->windowTitle());
    dialog.setBar(bar);
    dialog.setMinimumDuration(0);
    QTimer poll;
    bool isDone = false;
    QObject::connect(&poll, &QTimer::timeout, &dialog, [&] {
        if (!job.ended.tryAcquire()) {
            bar->setValue(static_cast<int>(job.share * PerCent));
            return;
        }
        poll.stop(); // exec() may return later because of another event loop
        isDone = true;
        dialog.accept();
    });
    poll.start(PollMs);
    dialog.exec();
    return isDone;
}

bool waitForJob(QWidget *parent, const QString &text, int barMaximum, Job &job)
{
    if (job.ended.tryAcquire(1, PatienceMs))
        return true;
    auto *bar = new QProgressBar; // owned by the dialog
    bar->setRange(0, barMaximum);
    const bool isDone = waitWithDialog(parent, text, bar, job);
    job.stopped = !isDone;
    return isDone;
}

} // namespace

bool waitFor(QWidget *parent, const QString &text, const std::function<void()> &work)
{
    return waitForJob(parent, text, 0, *start([work](Job &) { work(); }));
}

bool waitFor(QWidget *parent, const QString &text,
             const std::function<void(const Progress &)> &work)
{
    const auto job = start([work](Job &started) {
        work([&started](double share) {
            started.share = share;
            return !started.stopped;
        });
    });
    return waitForJob(parent, text, static_cast<int>(PerCent), *job);
}

bool waitForMoment(const std::function<void()> &work)
{
    return start([work](Job &) { work(); })->ended.tryAcquire(1, PatienceMs);
}

void runBeside(QObject *receiver, const std::function<void()> &work,
               const std::function<void()> &finished)
{
    start([work, finished, receiver = QPointer<QObject>(receiver)](Job &) {
        work();
        QMetaObject::invokeMethod(
            qApp,
            [receiver, finished] {
                if (receiver)
                    finished();
            },
            Qt::QueuedConnection);
    });
}

bool isWorkRunning()
{
    return runningWorks > 0;
}

} // namespace vlt::wizard
