#pragma once

#include "buildings/BuildingsSource.h"
#include "buildings/HeightAdvice.h"
#include "platform/Result.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>

/// Counts what would be drawn from the choices of the source page, on another thread and without a
/// dialog. A new choice stops the count before it.
class SourceCounter : public QObject
{
    Q_OBJECT

public:
    /// What a choice leads to.
    struct Outcome
    {
        vlt::Result<vlt::buildings::CountedBuildings> counted;
        std::optional<vlt::buildings::HeightAdvice> advice;
    };

    explicit SourceCounter(QObject *parent = nullptr);
    ~SourceCounter() override;

    /// Counts soon, unless the choice is the last one. Without a file or a height field nothing is
    /// counted. Without a terrain, missing ground is no substitute.
    void count(const vlt::buildings::BuildingsSource &source,
               const vlt::geodata::PolygonLayer &layer);

    /// Forgets the last choice.
    void clear();

Q_SIGNALS:
    /// The count of a new choice has begun or will soon.
    void started();
    void ended(const SourceCounter::Outcome &outcome);

private:
    void start();
    void stop();

    vlt::contract::BuildingDocument m_document; ///< of the last choice
    vlt::geodata::PolygonLayer m_layer;
    QTimer m_delay;                                 ///< combines quick changes into one count
    std::shared_ptr<std::atomic<bool>> m_isStopped; ///< shared with the thread that counts
};
