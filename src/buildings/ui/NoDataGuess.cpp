#include "buildings/ui/NoDataGuess.h"

#include "buildings/ui/RasterMessages.h"
#include "geodata/RasterSource.h"
#include "text/Numbers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QProgressBar>
#include <QTimer>
#include <QWizard>

#include <atomic>
#include <optional>
#include <thread>

namespace vlt::buildings {

namespace {

using GuessedNoData = Stoppable<std::optional<double>>;

constexpr int PollMs = 50;

/// Disables a page and its buttons Next and Back as long as it exists; then the page gets the focus
/// back.
class PageLock
{
public:
    explicit PageLock(QWidget *page) : m_page(page), m_focus(QApplication::focusWidget())
    {
        lock(page);
        if (const auto *wizard = qobject_cast<QWizard *>(page->window())) {
            for (const auto which : {QWizard::NextButton, QWizard::BackButton})
                lock(wizard->button(which));
        }
    }
    ~PageLock()
    {
        for (const QPointer<QWidget> &widget : std::as_const(m_locked)) {
            if (widget)
                widget->setEnabled(true);
        }
        if (m_page && m_focus && m_page->isAncestorOf(m_focus))
            m_focus->setFocus();
    }
    PageLock(const PageLock &) = delete;
    PageLock &operator=(const PageLock &) = delete;

private:
    void lock(QWidget *widget)
    {
        if (!widget->isEnabled())
            return;
        widget->setEnabled(false);
        m_locked.append(widget);
    }

    QPointer<QWidget> m_page;
    QPointer<QWidget> m_focus;
    QList<QPointer<QWidget>> m_locked;
};

/// Guesses on another thread while the user interface stays responsive; no value if the page was
/// closed during the guess.
GuessedNoData guessBeside(const QPointer<QWidget> &page, const QString &path, const QString &part,
                          int band, const QPointer<QProgressBar> &bar)
{
    GuessedNoData guessed;
    std::atomic<bool> isAbandoned = false;
    QEventLoop loop;
    const auto showShare = [&loop, bar](double share) {
        const int value = static_cast<int>(share);
        QMetaObject::invokeMethod(
            &loop,
            [bar, value] {
                if (bar)
                    bar->setValue(value);
            },
            Qt::QueuedConnection);
    };
    std::thread worker([&] {
        const auto report = [&](double share) {
            showShare(share);
            return !isAbandoned;
        };
        guessed = geodata::guessedNoData(path, report, part, band);
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });

    const bool wasVisible = page->window()->isVisible();
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (!page || (wasVisible && !page->window()->isVisible()))
            loop.quit();
    });
    poll.start(PollMs);
    loop.exec(); // the end of the program ends this loop too
    isAbandoned = true;
    worker.join();
    const bool isClosed = !page || (wasVisible && !page->window()->isVisible());
    return isClosed ? std::nullopt : guessed;
}

} // namespace

QString guessNoData(QWidget *disabled, const QString &path, QProgressBar *bar, const QString &part,
                    int band)
{
    if (path.isEmpty())
        return {};
    const QPointer<QWidget> page(disabled);
    const QPointer<QProgressBar> shown(bar);
    bar->setRange(0, 1);
    bar->setValue(0);
    bar->show();
    GuessedNoData guessed;
    {
        const PageLock lock(disabled);
        guessed = guessBeside(page, path, part, band, shown);
        if (shown)
            shown->hide();
    }
    if (!guessed)
        return {};
    if (guessed->ok() && guessed->value())
        return text::f6(*guessed->value());
    warnOfRaster(disabled, guessed->ok() ? RasterProblem::NoBands : RasterProblem::CannotOpen,
                 path);
    return {};
}

} // namespace vlt::buildings
