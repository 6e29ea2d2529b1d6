#include "tables/ui/VltLayerPreview.h"

#include "ui_LayerPreview.h"

#include "contract/SceneFactKeys.h"
#include "language/ErrorText.h"
#include "preview/VltObjectPointing.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/SceneGround.h"
#include "tables/ObjectPage.h"
#include "wizard/base/BusyWait.h"
#include "wizard/project/ProjectContext.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFileInfo>
#include <QPainter>

namespace {

constexpr int RefreshDelayMs = 400;
constexpr int PatienceMs = 400;

/// A layer as it was read, with its ground.
struct ReadLayer
{
    vlt::Result<vlt::snapshot::Scene> scene;
    GroundMaker ground;
};

} // namespace

VltLayerPreview::VltLayerPreview(QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::LayerPreview>())
{
    m_ui->setupUi(this);
    m_ui->m_pwPreview->setEmptyText(tr("The layer appears here.", "MESS_EMPTY_PREVIEW"));
    m_refreshTimer.setSingleShot(true);
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    m_demonstrationButton = m_ui->m_pwPbSymbolic;
    auto *views = new QButtonGroup(this);
    for (QPushButton *button : {m_ui->m_pwPbSymbolic, m_ui->m_pwPbPrecise, m_ui->m_pwPbOwn}) {
        views->addButton(button);
        button->setEnabled(hasView() && button != m_ui->m_pwPbOwn);
    }
    const auto connectDemonstration = [this](QPushButton *button,
                                             void (VltLayerPreview::*wanted)()) {
        connect(button, &QPushButton::clicked, this, [this, button, wanted] {
            m_wantsLayer = false;
            m_demonstrationButton = button;
            Q_EMIT(this->*wanted)();
        });
    };
    connectDemonstration(m_ui->m_pwPbSymbolic, &VltLayerPreview::symbolicWanted);
    connectDemonstration(m_ui->m_pwPbPrecise, &VltLayerPreview::preciseWanted);
    connect(m_ui->m_pwPbOwn, &QPushButton::clicked, this, &VltLayerPreview::wantLayer);
    connectPointing();
    connect(&m_refreshTimer, &QTimer::timeout, this, &VltLayerPreview::readLayer);
    connect(&m_patience, &QTimer::timeout, this, &VltLayerPreview::showState);
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
    showState();
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

/// The camera for a whole scene depends on the size of the view, which is known now.
void VltLayerPreview::showEvent(QShowEvent *event)
{
    QGroupBox::showEvent(event);
    if (m_shown == &m_demonstration && !m_isPlaced)
        placeFirst();
}

void VltLayerPreview::setOwnLayer(const OwnLayer &words)
{
    m_ui->m_pwPbOwn->setObjectName(words.objectName);
    m_ui->m_pwPbOwn->setText(words.name);
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
    m_demonstration.scene = scene;
    m_demonstration.ground = vlt::snapshot::groundUnder(scene, {});
    if (m_shown != &m_layer)
        showDemonstration();
}

void VltLayerPreview::setLayerFile(const QString &path, const QString &project)
{
    m_layerFile = path;
    m_project = project;
    m_isOutdated = true;
    m_problem.clear();
    m_ui->m_pwPbOwn->setEnabled(hasView() && !path.isEmpty());
    if (path.isEmpty())
        leaveLayer();
    else if (hasView() && m_wantsLayer)
        m_refreshTimer.start(m_layer.scene ? RefreshDelayMs : 0);
    showState();
}

void VltLayerPreview::expectLayer()
{
    m_wantsLayer = true;
    m_layerPlace.clear();
}

void VltLayerPreview::wantLayer()
{
    m_wantsLayer = true;
    if (m_layer.scene)
        show(m_layer);
    if (m_isOutdated)
        readLayer();
    showState();
}

void VltLayerPreview::lookAtDemonstration(double distanceM, double heightM)
{
    showDemonstration();
    m_ui->m_pwPreview->placeCamera(distanceM, heightM);
}

void VltLayerPreview::lookAtDemonstration(double leastM)
{
    showDemonstration();
    m_ui->m_pwPreview->lookAtMiddle(leastM);
}

/// Shows a scene with its own camera; for the first time, the camera shows all of it.
void VltLayerPreview::show(Picture &picture)
{
    VltPreviewPane &pane = *m_ui->m_pwPreview;
    const bool isOther = m_shown != &picture;
    if (m_shown && isOther)
        m_shown->pose = pane.pose();
    m_shown = &picture;
    pane.setCore(vlt::snapshot::coreOf(*picture.scene));
    const QString terrain =
        &picture == &m_layer ? vlt::project::readProjectContext(m_project).terrainFile : QString();
    pane.showScene(picture.scene, picture.ground, vlt::snapshot::readingOf(picture.scene, terrain));
    if (!picture.pose) {
        pane.centerView();
        picture.pose = pane.pose();
    } else if (isOther) {
        pane.setPose(*picture.pose);
    }
    if (&picture == &m_layer)
        showSelection();
    showState();
}

void VltLayerPreview::showDemonstration()
{
    if (!m_demonstration.scene)
        return;
    show(m_demonstration);
    if (isVisible() && !m_isPlaced)
        placeFirst();
}

/// Makes the first picture of the demonstration that of the button for the view from far, unless
/// some of the demonstration would be outside.
void VltLayerPreview::placeFirst()
{
    constexpr double Tolerance = 0.99;
    m_isPlaced = true;
    m_ui->m_pwPreview->centerView();
    m_demonstration.pose = m_ui->m_pwPreview->pose();
    Q_EMIT symbolicWanted();
    if (m_ui->m_pwPreview->pose().distanceM() < Tolerance * m_demonstration.pose->distanceM())
        m_ui->m_pwPreview->setPose(*m_demonstration.pose);
}

/// Shows the demonstration in place of a layer that is gone.
void VltLayerPreview::leaveLayer()
{
    if (m_shown == &m_layer) {
        m_layer.pose = m_ui->m_pwPreview->pose();
        m_shown = nullptr;
        if (m_demonstration.scene)
            showDemonstration();
        else
            m_ui->m_pwPreview->showScene(nullptr);
    }
    m_layer.scene = nullptr;
    m_layer.ground = {};
}

/// Reads the layer beside the interface. During a read, the next one waits for its end.
void VltLayerPreview::readLayer()
{
    if (m_isReading || m_layerFile.isEmpty())
        return;
    m_isReading = true;
    m_isOutdated = false;
    m_patience.start();
    const QString terrain = vlt::project::readProjectContext(m_project).terrainFile;
    vlt::wizard::valueBeside<ReadLayer>(
        this,
        [layer = m_layerFile, project = m_project, terrain] {
            const auto scene = vlt::snapshot::readScene(layer, project, terrain);
            return ReadLayer{scene, scene ? vlt::snapshot::groundUnder(scene.value(), terrain)
                                          : GroundMaker()};
        },
        [this](const ReadLayer &read) { takeLayer(read.scene, read.ground); });
}

void VltLayerPreview::takeLayer(const vlt::Result<vlt::snapshot::Scene> &scene,
                                const GroundMaker &ground)
{
    m_isReading = false;
    m_patience.stop();
    if (m_isOutdated || m_layerFile.isEmpty()) {
        if (m_wantsLayer && !m_refreshTimer.isActive())
            readLayer();
        showState();
        return;
    }
    if (!scene) {
        m_problem = tr("%1: %2", "MESS_FILE_REASON")
                        .arg(tr("The layer cannot be shown", "MESS_CANT_SHOW_LAYER"),
                             vlt::language::reasonOf(scene.error()));
        leaveLayer();
        showState();
        return;
    }
    const QString place =
        vlt::snapshot::sceneFact(*scene.value(), vlt::contract::facts::Centre).value_or(QString());
    if (place != m_layerPlace)
        m_layer.pose.reset();
    m_layerPlace = place;
    m_layer.scene = scene.value();
    m_layer.ground = ground;
    if (m_wantsLayer)
        show(m_layer);
    showState();
}

/// States which scene is shown, and what goes on beside it.
void VltLayerPreview::showState()
{
    QPushButton *shown = m_shown == &m_layer ? m_ui->m_pwPbOwn : m_demonstrationButton;
    shown->setChecked(true);
    QStringList lines;
    if (m_shown == &m_demonstration)
        lines << tr("Example", "MESS_EXAMPLE");
    if (m_isReading && !m_patience.isActive())
        lines << m_loadingText;
    if (!m_problem.isEmpty())
        lines << m_problem;
    m_ui->m_pwPreview->setCaption(lines.join(QLatin1Char('\n')));
}

void VltLayerPreview::connectPointing()
{
    VltObjectPointing *pointing = m_ui->m_pwPreview->pointing();
    if (!pointing)
        return;
    connect(pointing, &VltObjectPointing::picked, this, [this, pointing](int object) {
        m_selectedRow = object < 0 ? 0 : pointing->objects()->row(static_cast<std::size_t>(object));
        readCard(m_selectedRow);
        Q_EMIT rowPicked(m_selectedRow);
    });
}

void VltLayerPreview::selectRow(qint64 row)
{
    m_selectedRow = row;
    m_isFlying = false;
    if (m_shown == &m_layer)
        showSelection();
}

void VltLayerPreview::flyToRow(qint64 row)
{
    m_selectedRow = row;
    m_isFlying = true;
    if (m_shown == &m_layer)
        showSelection();
    else if (m_layer.scene)
        wantLayer();
}

/// Marks the object of the selected row. A row that gives no object of its own may belong to one
/// that begins in another row.
void VltLayerPreview::showSelection()
{
    VltObjectPointing *pointing = m_ui->m_pwPreview->pointing();
    if (!pointing || !pointing->objects())
        return;
    const auto object = pointing->objects()->ofRow(m_selectedRow);
    pointing->select(object);
    if (object) {
        if (m_isFlying)
            pointing->flyTo(*object);
        m_isFlying = false;
        readCard(m_selectedRow);
    } else if (m_selectedRow > 0) {
        vlt::wizard::valueBeside<qint64>(
            this,
            [layer = m_layerFile, folder = projectDirectory(), row = m_selectedRow] {
                const auto first = vlt::tables::readFirstRow(layer, folder, row);
                return first ? first.value() : 0;
            },
            [this, row = m_selectedRow](qint64 first) {
                if (row != m_selectedRow || first == 0 || first == row)
                    return;
                m_selectedRow = first;
                if (m_shown == &m_layer)
                    showSelection();
            });
    }
}

/// Shows the card of a row when its page is read, unless another one was selected meanwhile.
void VltLayerPreview::readCard(qint64 row)
{
    using Page = vlt::Result<QString>;
    if (row == 0)
        return;
    vlt::wizard::valueBeside<Page>(
        this,
        [layer = m_layerFile, folder = projectDirectory(), row] {
            return vlt::tables::readObjectPage(layer, folder, row);
        },
        [this, row](const Page &page) {
            VltObjectPointing *pointing = m_ui->m_pwPreview->pointing();
            if (page && row == m_selectedRow && pointing->selected())
                pointing->showCard(page.value());
        });
}

QString VltLayerPreview::projectDirectory() const
{
    return m_project.isEmpty() ? QString() : QFileInfo(m_project).absolutePath();
}
