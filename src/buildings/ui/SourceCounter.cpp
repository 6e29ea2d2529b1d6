#include "buildings/ui/SourceCounter.h"

#include "buildings/BuildingLayerFiles.h"
#include "contract/SceneTexts.h"
#include "language/ReaderText.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

using namespace vlt;
using contract::BuildingDocument;

namespace {

constexpr int DelayMs = 200;

SourceCounter::Outcome outcomeOf(const BuildingDocument &document,
                                 const geodata::PolygonLayer &layer, const Progress &progress)
{
    SourceCounter::Outcome outcome{buildings::countBuildings(document, progress), {}};
    if (!outcome.counted)
        return outcome;
    buildings::CountedBuildings counted = outcome.counted.value();
    outcome.advice = buildings::adviseHeights(document, counted, layer, progress);
    if (document.terrain.file.empty()) {
        counted.counts.substitutes.zeroGround = 0;
        counted.notices.removeAll(language::readerText(
            QString::fromStdString(contract::formatted("MESS_SCENE_NO_TERRAIN", {}))));
        outcome.counted = counted;
    }
    return outcome;
}

} // namespace

SourceCounter::SourceCounter(QObject *parent) : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &SourceCounter::start);
}

SourceCounter::~SourceCounter()
{
    stop();
}

void SourceCounter::count(const buildings::BuildingsSource &source,
                          const geodata::PolygonLayer &layer)
{
    buildings::BuildingLayerInput input;
    input.source = source;
    const BuildingDocument document = buildings::countedParts(buildings::documentOf(input));
    if (document == m_document)
        return;
    clear();
    m_document = document;
    m_layer = layer;
    if (source.file.isEmpty() || source.heightField.isEmpty())
        return;
    m_delay.start();
    Q_EMIT started();
}

void SourceCounter::clear()
{
    stop();
    m_document = {};
}

void SourceCounter::stop()
{
    m_delay.stop();
    if (m_isStopped)
        *m_isStopped = true;
    m_isStopped.reset();
}

void SourceCounter::start()
{
    const auto isStopped = std::make_shared<std::atomic<bool>>(false);
    m_isStopped = isStopped;
    const QPointer<SourceCounter> self(this);
    QThreadPool::globalInstance()->start([self, isStopped, document = m_document, layer = m_layer] {
        const Outcome outcome =
            outcomeOf(document, layer, [&isStopped](double) { return !*isStopped; });
        if (*isStopped)
            return;
        QMetaObject::invokeMethod(qApp, [self, isStopped, outcome] {
            if (self && !*isStopped)
                Q_EMIT self->ended(outcome);
        });
    });
}
