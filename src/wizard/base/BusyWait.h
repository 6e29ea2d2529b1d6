#pragma once

#include "contract/Progress.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace vlt::wizard {

/// Runs `work` on another thread and returns when it has ended; true then. Where it takes longer
/// than a moment a modal dialog with `text`, a busy bar and a Cancel button is shown meanwhile, and
/// the interface stays alive. False when the user cancelled: the work then goes on unseen, so it
/// must own everything that it uses.
bool waitFor(QWidget *parent, const QString &text, const std::function<void()> &work);

/// The same for work that tells how far it is: the bar shows the per cent. It is told to stop when
/// the user cancels, but not waited for.
bool waitFor(QWidget *parent, const QString &text,
             const std::function<void(const Progress &)> &work);

/// The same for work that gives a value; nothing when the user cancelled.
template<typename T>
std::optional<T> waitForValue(QWidget *parent, const QString &text, const std::function<T()> &work)
{
    const auto value = std::make_shared<std::optional<T>>();
    if (!waitFor(parent, text, [value, work] { value->emplace(work()); }))
        return std::nullopt;
    return std::move(*value);
}

/// The same for work that gives a value and tells how far it is.
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

/// Runs `work` on another thread and waits a moment for it, without any dialog. False where it
/// takes longer: the work then goes on unseen, as above.
bool waitForMoment(const std::function<void()> &work);

/// The same for work that gives a value; nothing where it takes longer.
template<typename T>
std::optional<T> valueWithinMoment(const std::function<T()> &work)
{
    const auto value = std::make_shared<std::optional<T>>();
    if (!waitForMoment([value, work] { value->emplace(work()); }))
        return std::nullopt;
    return std::move(*value);
}

/// Whether work goes on that the user cancelled, or that nobody waits for any more. A program that
/// ends meanwhile must end at once, without taking down what the work uses.
bool isWorkRunning();

} // namespace vlt::wizard
