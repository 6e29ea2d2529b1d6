#include "buildings/ui/VltBuildingLayerPage.h"

#include "buildings/CountsText.h"
#include "buildings/ui/VltBuildingPreview.h"
#include "platform/Settings.h"
#include "text/RichText.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/DraggableIcon.h"

namespace {

constexpr int RefreshDelayMs = 400;

} // namespace

VltBuildingLayerPage::VltBuildingLayerPage(QWidget *wizard, SharedParameters &parameters,
                                           const QString &installDir, const QString &language,
                                           const Names &names)
    : VltResultPage(wizard, parameters, installDir, language, names)
    , m_settingsGroup(names.settings)
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, [this] { makeLayer(); });
    vlt::snapshot::addInstalledReaders(installDir);
}

void VltBuildingLayerPage::setForm(VltBuildingPreview *preview, QBoxLayout *dragRow,
                                   QLabel *dragText)
{
    m_preview = preview;
    setResult({dragRow, dragText,
               tr("Layer of buildings to drag into the builder", "MESS_DRAG_NAME_TEXB"),
               tr("Drag the layer file into the builder; Ctrl+C copies it to be pasted there.\nIts "
                  "files are temporary: Ctrl+S saves the layer permanently, together with its "
                  "document and legend.",
                  "MESS_TIP_DRAG_TEXB")});
    m_iconToolTip = dragIcon()->toolTip();
    // The temporary files are deleted at the end of this process or at the next start of the
    // machine. Therefore a saved layer gets its own files.
    dragIcon()->setSaver([this](const QString &target) {
        return writeLayer(target, vlt::platform::Access::Shared);
    });
    connect(m_preview, &VltBuildingPreview::autoRefreshChanged, this,
            &VltBuildingLayerPage::autoRefreshChanged);
    connect(m_preview, &VltBuildingPreview::refreshRequested, this,
            &VltBuildingLayerPage::refreshRequested);
}

vlt::buildings::BuildingLayerInput
VltBuildingLayerPage::layerInput(const vlt::contract::BuildingFootprints &footprints,
                                 const std::optional<vlt::buildings::LegendInput> &legend) const
{
    return {m_source, footprints, installDir(), legend, {}};
}

/// The page is not visible yet. Work that may be slow or open a message box waits until it is.
void VltBuildingLayerPage::initializePage()
{
    VltResultPage::initializePage();
    m_source = vlt::buildings::readBuildingsSource(parameters());
    m_count.reset();
    setLayerFile({});
    m_delay.start(0);
}

void VltBuildingLayerPage::cleanupPage()
{
    m_delay.stop();
    VltResultPage::cleanupPage();
}

bool VltBuildingLayerPage::validatePage()
{
    saveSettings();
    const bool isMade = !dragIcon()->layerFile().isEmpty();
    if ((isOutdated() || !isMade) && !makeLayer())
        return false;
    return VltResultPage::validatePage();
}

QString VltBuildingLayerPage::autoRefreshKey() const
{
    return m_settingsGroup + QStringLiteral("/AutoRefresh");
}

void VltBuildingLayerPage::saveSettings()
{
    VltResultPage::saveSettings();
    vlt::platform::wizardSettings()->setValue(autoRefreshKey(), m_preview->isAutoRefresh());
}

void VltBuildingLayerPage::restoreSettings()
{
    VltResultPage::restoreSettings();
    m_preview->setAutoRefresh(
        vlt::platform::wizardSettings()->value(autoRefreshKey(), true).toBool());
}

void VltBuildingLayerPage::updatePreview()
{
    outdate();
    if (m_preview->isAutoRefresh() || !missingText().isEmpty()) {
        setLayerFile({});
        m_delay.start(RefreshDelayMs);
    } else {
        m_preview->showMessage(
            tr("The settings have changed: refresh the view to see them.", "MESS_VIEW_IS_STALE"));
    }
}

void VltBuildingLayerPage::resetView()
{
    m_preview->resetView();
}

void VltBuildingLayerPage::autoRefreshChanged(int state)
{
    if (state != Qt::Unchecked && isOutdated())
        updatePreview();
}

void VltBuildingLayerPage::refreshRequested()
{
    m_count.reset();
    makeLayer();
}

void VltBuildingLayerPage::beginLayer()
{
    m_delay.stop();
    m_refusal.clear();
}

bool VltBuildingLayerPage::count(const vlt::contract::BuildingDocument &document,
                                 vlt::buildings::BuildingLayerInput &input)
{
    using Counted = vlt::Result<vlt::buildings::CountedBuildings>;
    const vlt::contract::BuildingDocument parts = vlt::buildings::countedParts(document);
    if (!m_count || !(m_count->parts == parts)) {
        m_count.reset();
        const auto counted = vlt::wizard::waitForValue<Counted>(
            this, tr("Counting the buildings...", "MESS_COUNTING_BUILDINGS"),
            [parts](const vlt::Progress &progress) {
                return vlt::buildings::countBuildings(parts, progress);
            });
        if (!counted) {
            m_refusal = tr("Counting was stopped: refresh the view to make the layer.",
                           "MESS_COUNTING_STOPPED");
            return false;
        }
        if (!*counted)
            return true;
        m_count = {parts, counted->value()};
    }
    input.counted = m_count->counted;
    const auto nothing = vlt::buildings::nothingDrawnText(input.counted);
    if (nothing)
        m_refusal = vlt::buildings::asSentence(*nothing);
    return !nothing;
}

std::optional<QString> VltBuildingLayerPage::obstacle() const
{
    const QString missing = missingText();
    return missing.isEmpty() ? std::nullopt : std::optional(missing);
}

vlt::Stoppable<vlt::Done> VltBuildingLayerPage::writeLayer(const QString &path,
                                                           vlt::platform::Access access)
{
    const auto written = writeFiles(path, access);
    if (!written)
        return std::nullopt;
    if (!*written)
        return written->error();
    m_files = written->value();
    return vlt::Done{};
}

bool VltBuildingLayerPage::followsChanges() const
{
    return m_preview->isAutoRefresh();
}

void VltBuildingLayerPage::showLayer(const QString &path)
{
    QStringList companions{m_files.document};
    for (const QString &file : {m_files.colorMap, m_files.legend}) {
        if (!file.isEmpty())
            companions << file;
    }
    dragIcon()->setCompanions(companions);
    dragIcon()->setToolTip(m_iconToolTip);
    layerWritten(m_files);
    m_preview->showLayer(path, m_source.project);
}

void VltBuildingLayerPage::showNoLayer(const QString &why)
{
    layerWritten({});
    m_preview->showLayer({}, {});
    const QString refusal = why.isEmpty() ? m_refusal : why;
    m_preview->showMessage(refusal.isEmpty() ? tr("The layer was not made.", "MESS_LAYER_NOT_MADE")
                                             : refusal);
    dragIcon()->setToolTip(refusal.isEmpty() ? m_iconToolTip : vlt::text::asRichText(refusal));
}
