#include "buildings/ui/VltBuildingLayerPage.h"

#include "buildings/ui/VltBuildingPreview.h"
#include "wizard/base/DraggableIcon.h"
#include "wizard/base/Messages.h"
#include "wizard/base/TemporaryLayerFile.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace {

constexpr int RefreshDelayMs = 400;

/// What begins a drag, copies the file or opens the icon's menu; not what only moves the focus.
bool takesHold(const QEvent &event)
{
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent &>(event).key();
        return key != Qt::Key_Tab && key != Qt::Key_Backtab;
    }
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::ContextMenu;
}

} // namespace

VltBuildingLayerPage::VltBuildingLayerPage(QWidget *wizard, SharedParameters &parameters,
                                           const QString &installDir, const QString &language,
                                           const QString &layerName)
    : BasePage(wizard, parameters, installDir, language)
    , m_layerName(layerName)
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &VltBuildingLayerPage::makeLayer);
    vlt::snapshot::addInstalledReaders(installDir);
}

void VltBuildingLayerPage::setResult(VltBuildingPreview *preview, QBoxLayout *dragRow,
                                     QLabel *dragText)
{
    constexpr QSize IconSize(72, 72);
    const QIcon picture(QStringLiteral(":/images/drag-drop-icon.png"));
    m_preview = preview;
    m_dragText = dragText;
    m_dragIcon = new DraggableIcon(picture.pixmap(IconSize, qApp->devicePixelRatio()), this);
    m_dragIcon->setObjectName(QStringLiteral("m_pwDragIcon"));
    m_dragIcon->setAccessibleName(
        tr("Layer of buildings to drag into the builder", "MESS_DRAG_NAME_TEXB"));
    m_dragIcon->setToolTip(
        tr("Drag the layer file into the builder; Ctrl+C copies it to be pasted there.\nIts files "
           "are temporary: Ctrl+S saves it for good, with its document and legend beside it.",
           "MESS_TIP_DRAG_TEXB"));
    m_dragIcon->setSaver([this](const QString &target) { return saveLayer(target); });
    m_dragIcon->installEventFilter(this);
    dragRow->addWidget(m_dragIcon);
    setLayerFile({});
    connect(m_preview, &VltBuildingPreview::autoRefreshChanged, this,
            &VltBuildingLayerPage::autoRefreshChanged);
    connect(m_preview, &VltBuildingPreview::refreshRequested, this,
            &VltBuildingLayerPage::refreshRequested);
}

vlt::buildings::BuildingLayerInput
VltBuildingLayerPage::layerInput(const vlt::contract::BuildingFootprints &footprints,
                                 const std::optional<vlt::buildings::LegendInput> &legend) const
{
    return {m_source, footprints, installDir(), legend};
}

/// The page is not shown yet: what may take long or open a box waits for that.
void VltBuildingLayerPage::initializePage()
{
    BasePage::initializePage();
    m_source = vlt::buildings::readBuildingsSource(parameters());
    m_isStale = true;
    setLayerFile({});
    m_delay.start(0);
}

void VltBuildingLayerPage::cleanupPage()
{
    m_delay.stop();
    BasePage::cleanupPage();
}

bool VltBuildingLayerPage::validatePage()
{
    saveSettings();
    const bool isMade = !m_dragIcon->layerFile().isEmpty();
    if ((m_isStale || !isMade) && !makeLayer())
        return false;
    return vlt::messages::confirmed(
        this, tr("Voulez-vous quitter l'application ?", "MESS_QUEST_QUIT_APP"));
}

void VltBuildingLayerPage::updatePreview()
{
    m_isStale = true;
    if (m_preview->isAutoRefresh() || !isReady()) {
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
    if (state != Qt::Unchecked && m_isStale)
        updatePreview();
}

void VltBuildingLayerPage::refreshRequested()
{
    makeLayer();
}

/// A change that is not in the layer yet goes into it before the user has it.
bool VltBuildingLayerPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_dragIcon && takesHold(*event) && m_isStale && m_dragIcon->isEnabled() &&
        !makeLayer())
        return true;
    return BasePage::eventFilter(watched, event);
}

void VltBuildingLayerPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        BasePage::keyPressEvent(event);
}

void VltBuildingLayerPage::setLayerFile(const QString &path)
{
    m_dragIcon->setLayerFile(path);
    m_dragText->setEnabled(!path.isEmpty());
}

void VltBuildingLayerPage::leaveLayer(const QString &message)
{
    setLayerFile({});
    layerWritten({});
    m_preview->showLayer({}, {});
    m_preview->showMessage(message);
}

/// Changes that arrive meanwhile, from below a message box, are folded into one further layer.
bool VltBuildingLayerPage::makeLayer()
{
    if (m_isMaking) {
        m_isStale = true;
        return false;
    }
    const QScopedValueRollback making(m_isMaking, true);
    bool isMade = false;
    do {
        m_delay.stop();
        m_isStale = false;
        isMade = makeOnce();
    } while (m_isStale && m_preview->isAutoRefresh());
    return isMade;
}

/// The temporary files go with this process or the next start of the machine; a saved layer names
/// files of its own.
std::optional<vlt::Result<vlt::Done>> VltBuildingLayerPage::saveLayer(const QString &target)
{
    const auto written = writeFiles(target, vlt::platform::Access::Shared);
    if (!written)
        return std::nullopt;
    if (!*written)
        return written->error();
    return vlt::Done{};
}

bool VltBuildingLayerPage::makeOnce()
{
    if (!isReady()) {
        leaveLayer(missingText());
        return false;
    }
    const auto written = writeFiles(vlt::wizard::temporaryLayerFileName(m_layerName),
                                    vlt::platform::Access::UserOnly);
    if (!written || !*written) {
        leaveLayer(tr("The layer has not been made.", "MESS_LAYER_NOT_MADE"));
        if (written)
            vlt::messages::critical(this, written->error());
        return false;
    }
    saveSettings();
    const vlt::buildings::BuildingLayerFiles &files = written->value();
    layerWritten(files);
    setLayerFile(files.layer);
    m_preview->showLayer(files.layer, m_source.project);
    return true;
}
