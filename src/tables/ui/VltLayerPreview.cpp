#include "tables/ui/VltLayerPreview.h"

#include "ui_LayerPreview.h"

#include "language/ErrorText.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/SceneGround.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"
#include "wizard/project/ProjectContext.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int RefreshDelayMs = 400;

} // namespace

VltLayerPreview::VltLayerPreview(QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::LayerPreview>())
{
    m_ui->setupUi(this);
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(RefreshDelayMs);
    for (QPushButton *button : {m_ui->m_pwPbSymbolic, m_ui->m_pwPbPrecise})
        button->setEnabled(hasView());
    m_ui->m_pwPbOwn->setEnabled(false);
    connect(m_ui->m_pwPbSymbolic, &QPushButton::clicked, this, &VltLayerPreview::symbolicWanted);
    connect(m_ui->m_pwPbPrecise, &QPushButton::clicked, this, &VltLayerPreview::preciseWanted);
    connect(m_ui->m_pwPbOwn, &QPushButton::clicked, this, &VltLayerPreview::chooseScene);
    connect(&m_refreshTimer, &QTimer::timeout, this, &VltLayerPreview::refreshLayer);
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
}

VltLayerPreview::~VltLayerPreview() = default;

/// Draws the focus frame: the view itself cannot show that it has the keyboard.
void VltLayerPreview::paintEvent(QPaintEvent *event)
{
    constexpr int RingWidth = 2;
    QGroupBox::paintEvent(event);
    const QWidget *focused = QApplication::focusWidget();
    if (!focused || !m_ui->m_pwPreview->isAncestorOf(focused))
        return;
    QPainter painter(this);
    painter.fillRect(
        m_ui->m_pwPreview->geometry().adjusted(-RingWidth, -RingWidth, RingWidth, RingWidth),
        palette().color(QPalette::Highlight));
}

void VltLayerPreview::setOwnLayer(const OwnLayer &words)
{
    m_ui->m_pwPbOwn->setObjectName(words.objectName);
    m_ui->m_pwPbOwn->setAccessibleName(words.name);
    m_ui->m_pwPbOwn->setToolTip(words.toolTip);
    m_ui->m_pwPbOwn->setIcon(QIcon(words.icon));
    m_loadingText = words.loading;
}

bool VltLayerPreview::hasView() const
{
    return m_ui->m_pwPreview->hasView();
}

void VltLayerPreview::setDemonstration(const vlt::snapshot::Scene &scene)
{
    m_demonstration = scene;
    if (!m_ui->m_pwPbOwn->isChecked())
        m_ui->m_pwPreview->showScene(scene, vlt::snapshot::groundUnder(scene, {}),
                                     vlt::snapshot::readingOf(scene));
}

void VltLayerPreview::setLayerFile(const QString &path, const QString &project)
{
    m_layerFile = path;
    m_project = project;
    m_ui->m_pwPbOwn->setEnabled(hasView() && !path.isEmpty());
    if (!path.isEmpty())
        m_refreshTimer.start();
}

void VltLayerPreview::leaveLayer()
{
    if (m_ui->m_pwPbOwn->isChecked())
        chooseScene(false);
}

void VltLayerPreview::lookAtDemonstration(double distanceM, double heightM)
{
    chooseScene(false);
    m_ui->m_pwPreview->placeCamera(distanceM, heightM);
}

void VltLayerPreview::lookAtDemonstration(double leastM)
{
    chooseScene(false);
    m_ui->m_pwPreview->lookAtMiddle(leastM);
}

/// Shows the layer or the demonstration; the cameras of the buttons fit only the demonstration.
void VltLayerPreview::chooseScene(bool ownLayer)
{
    const bool isShown = ownLayer && showLayer();
    m_ui->m_pwPbOwn->setChecked(isShown);
    if (!isShown && m_demonstration)
        m_ui->m_pwPreview->showScene(m_demonstration,
                                     vlt::snapshot::groundUnder(m_demonstration, {}),
                                     vlt::snapshot::readingOf(m_demonstration));
    m_ui->m_pwPreview->centerView();
}

bool VltLayerPreview::showLayer()
{
    if (m_layerFile.isEmpty())
        return false;
    const QString terrain = vlt::project::readProjectContext(m_project).terrainFile;
    const auto read = vlt::wizard::waitForValue<vlt::Result<vlt::snapshot::Scene>>(
        this, m_loadingText, [layer = m_layerFile, project = m_project, terrain] {
            return vlt::snapshot::readScene(layer, project, terrain);
        });
    if (read && read->ok()) {
        m_ui->m_pwPreview->showScene(read->value(),
                                     vlt::snapshot::groundUnder(read->value(), terrain),
                                     vlt::snapshot::readingOf(read->value()));
        return true;
    }
    if (read)
        vlt::messages::critical(this, {QStringLiteral("MESS_CANT_SHOW_LAYER"),
                                       QStringLiteral("The layer cannot be shown"), m_layerFile,
                                       vlt::language::reasonOf(read->error())});
    return false;
}

/// Loads the layer again after a change; the camera stays at the user's position.
void VltLayerPreview::refreshLayer()
{
    if (!m_ui->m_pwPbOwn->isChecked())
        return;
    if (QApplication::activeModalWidget()) // a dialog is open, so the layer may change again
        m_refreshTimer.start();
    else if (!m_layerFile.isEmpty() && !showLayer())
        chooseScene(false);
}
