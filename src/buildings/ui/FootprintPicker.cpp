#include "buildings/ui/FootprintPicker.h"

#include "buildings/HeightGuess.h"
#include "buildings/SourceSummary.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"

#include <QComboBox>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QThreadPool>

#include <utility>

using namespace vlt;

FootprintPicker::FootprintPicker(QWidget *page, const Widgets &widgets, bool &isBusy)
    : PathPicker(page, widgets.path, isBusy,
                 {QStringLiteral("MESS_ERR_OPEN_VECTORDS"),
                  QStringLiteral("This file can't be open as a vector file")})
    , m_widgets(widgets)
{}

void FootprintPicker::clear()
{
    m_source.reset();
    m_extent.reset();
    showPath({});
    m_widgets.layer->clear();
    m_widgets.height->clear();
    Q_EMIT changed();
}

void FootprintPicker::open(const QString &path, bool silent)
{
    if (m_isBusy)
        return;
    const QScopedValueRollback busy(m_isBusy, true);
    // The previous source is closed on the other thread too: that is slow if its features are in
    // memory.
    const auto previous = std::make_shared<std::shared_ptr<geodata::PolygonSource>>(m_source);
    clear();
    if (path.isEmpty())
        return;
    const auto close = [previous] { previous->reset(); };
    offerLayers(path, read(path, silent, close));
}

void FootprintPicker::openDropped(const QString &path)
{
    if (m_isBusy)
        return;
    const QScopedValueRollback busy(m_isBusy, true);
    std::shared_ptr<geodata::PolygonSource> opened = read(path, false, [] {});
    if (!opened)
        return;
    QThreadPool::globalInstance()->start([previous = std::move(m_source)] {}); // may be slow
    clear();
    offerLayers(path, std::move(opened));
}

std::shared_ptr<geodata::PolygonSource>
FootprintPicker::read(const QString &path, bool silent, const std::function<void()> &before) const
{
    using Opened = Result<std::shared_ptr<geodata::PolygonSource>>;
    const auto opened = wizard::waitForValue<Opened>(
        page(), tr("Reading the buildings...", "MESS_READING_BUILDINGS"), [path, before] {
            before();
            return geodata::PolygonSource::open(path);
        });
    if (!opened)
        return nullptr;
    if (!*opened) {
        if (!silent)
            messages::critical(page(), opened->error(), messages::errorTitle(),
                               messages::PathPlace::BelowText);
        return nullptr;
    }
    if (opened->value()->layers().isEmpty()) {
        messages::critical(page(),
                           {QStringLiteral("MESS_ERR_NOPOLY_LAY"),
                            QStringLiteral("This datasource doesn't contain any polygon layer")});
        return nullptr;
    }
    return opened->value();
}

void FootprintPicker::offerLayers(const QString &path,
                                  std::shared_ptr<geodata::PolygonSource> source)
{
    m_source = std::move(source);
    if (!m_source)
        return;
    {
        const QSignalBlocker quiet(m_widgets.layer); // the list would choose its first entry
        for (const geodata::PolygonLayer &layer : m_source->layers())
            m_widgets.layer->addItem(layer.name, layer.name);
        m_widgets.layer->setCurrentIndex(-1);
    }
    m_widgets.layer->setCurrentIndex(0);
    showPath(path);
    Q_EMIT changed();
}

const geodata::PolygonLayer *FootprintPicker::layer() const
{
    const int index = m_widgets.layer->currentIndex();
    return m_source && index >= 0 && index < m_source->layers().size()
               ? &m_source->layers().at(index)
               : nullptr;
}

void FootprintPicker::chooseLayer(int index)
{
    if (index < 0) {
        if (m_widgets.layer->count() > 0) // clear() calls this function again
            m_widgets.layer->clear();
        return;
    }
    const geodata::PolygonLayer *chosen = layer();
    if (chosen == nullptr)
        return;
    for (const geodata::VectorField &field : chosen->fields) {
        if (const QString caption = buildings::heightCaption(field); !caption.isEmpty())
            m_widgets.height->addItem(caption, field.name);
    }
    m_widgets.height->setCurrentIndex(buildings::guessedHeightField(chosen->fields));
    readExtent(index);
}

void FootprintPicker::readExtent(int index)
{
    const QScopedValueRollback busy(m_isBusy, true);
    m_extent.reset();
    const std::shared_ptr<geodata::PolygonSource> source = m_source;
    const auto extent = wizard::waitForValue<geodata::Extent>(
        page(), tr("Computing the extent of the buildings...", "MESS_READING_EXTENT"),
        [source, index] { return source->extent(index); });
    if (m_source == source && m_widgets.layer->currentIndex() == index)
        m_extent = extent;
    Q_EMIT changed();
}

bool FootprintPicker::locate()
{
    if (!m_extent)
        readExtent(m_widgets.layer->currentIndex());
    return m_extent.has_value();
}

std::optional<Error> FootprintPicker::wrongCondition(const QString &condition) const
{
    if (condition.isEmpty() || !m_source)
        return std::nullopt;
    const std::shared_ptr<geodata::PolygonSource> source = m_source;
    const int index = m_widgets.layer->currentIndex();
    const auto refused = wizard::waitForValue<std::optional<Error>>(
        page(), tr("Reading the buildings...", "MESS_READING_BUILDINGS"),
        [source, index, condition] { return source->conditionRefused(index, condition); });
    return refused ? *refused : std::nullopt;
}
