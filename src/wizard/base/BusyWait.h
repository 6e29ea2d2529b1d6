#pragma once

#include "contract/Progress.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QObject;
class QWidget;

namespace vlt::wizard {

/// Runs `work` on another thread and returns true when it has ended. If it takes longer than a
/// moment, a modal dialog shows `text`, a busy bar and a Cancel button, and the user interface
/// stays responsive. Returns false if the user cancels; the work then continues in the background,
/// so it must own all data that it uses.
bool waitFor(QWidget *parent, const QString &text, const std::function<void()> &work);

/// The same for work that reports its progress, which the bar shows in per cent. If the user
/// cancels, the next report asks the work to stop, and this function does not wait for its end.
bool waitFor(QWidget *parent, const QString &text,
             const std::function<void(const Progress &)> &work);

/// The same for work that returns a value; none if the user cancels.
template<typename T>
std::optional<T> waitForValue(QWidget *parent, const QString &text, const std::function<T()> &work)
{
    const auto value = std::make_shared<std::optional<T>>();
    if (!waitFor(parent, text, [value, work] { value->emplace(work()); }))
        return std::nullopt;
    return std::move(*value);
}

/// The same for work that returns a value and reports its progress.
template<typename T>
std::optional<T> waitForValue(QWidget *parent, const QString &text,
                              const std::function<T(const Progress &)> &work)
{
    const auto value = std::make_shared<std::optional<T>>();
    if (!waitFor(parent, text,
                 [value, work](const Progress &progress) { value->emplace(work(progress)); }))
        return std::nullopt;
    return std::move(*value);
}

/// Runs `work` on another thread and waits a moment for it, without a dialog. False if it takes
/// longer; the work then continues in the background, as with waitFor().
bool waitForMoment(const std::function<void()> &work);

/// The same for work that returns a value; none if it takes longer.
template<typename T>
std::optional<T> valueWithinMoment(const std::function<T()> &work)
{
    const auto value = std::make_shared<std::optional<T>>();
    if (!waitForMoment([value, work] { value->emplace(work()); }))
        return std::nullopt;
    return std::move(*value);
}

/// Runs `work` on another thread without waiting for it. Afterwards `finished` is called in the
/// thread of the user interface, unless `receiver` was destroyed before.
void runBeside(QObject *receiver, const std::function<void()> &work,
               const std::function<void()> &finished);

/// The same for work that returns a value, which `finished` receives.
template<typename T>
void valueBeside(QObject *receiver, const std::function<T()> &work,
                 const std::function<void(const T &)> &finished)
{
    const auto value = std::make_shared<std::optional<T>>();
    runBeside(
        receiver, [value, work] { value->emplace(work()); },
        [value, finished] { finished(**value); });
}

/// Whether work still runs that was cancelled, took too long or is beside the user interface. If
/// so, the program must end at once, without destroying data that the work uses.
bool isWorkRunning();

} // namespace vlt::wizard
