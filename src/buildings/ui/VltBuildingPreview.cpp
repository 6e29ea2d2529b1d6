#include "buildings/ui/VltBuildingPreview.h"

#include "language/Numbers.h"
#include "ui_BuildingPreview.h"

#include "buildings/CountsText.h"
#include "buildings/ui/BuildingCard.h"
#include "buildings/ui/NoticeList.h"
#include "contract/SceneFactKeys.h"
#include "language/ErrorText.h"
#include "language/ReaderText.h"
#include "preview/VisibleDistance.h"
#include "preview/VltObjectPointing.h"
#include "snapshot/DrawnBuildings.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/SceneGround.h"
#include "snapshot/SceneNotices.h"
#include "wizard/base/BusyWait.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <mutex>

namespace {

namespace facts = vlt::contract::facts;

/// Maximum distance of the camera as a share of the distance of visibility: farther away, too few
/// buildings are visible.
constexpr double NearShare = 0.85;
/// High enough to show roofs and buildings behind tall ones, low enough to show walls.
constexpr double ElevationDeg = 40;

/// A number in the facts about a scene; 0 if it is missing.
std::size_t count(const osg::Node &scene, const char *fact)
{
    return vlt::snapshot::sceneFact(scene, fact).value_or(QString()).toULongLong();
}

vlt::contract::CityCounts countsOf(const osg::Node &scene)
{
    vlt::contract::CityCounts counts;
    counts.features = count(scene, facts::Features);
    counts.drawn = count(scene, facts::Buildings);
    for (const auto &[key, member] : vlt::contract::LeftOutCounts)
        counts.leftOut.*member = count(scene, key);
    for (const auto &[key, member] : vlt::contract::SubstituteCounts)
        counts.substitutes.*member = count(scene, key);
    return counts;
}

/// A notice of a reader, in the user's language, without the layer at its start and without the
/// folders of files: the user knows both.
QString shortNotice(const QString &notice, const QString &layerPath)
{
    static const QRegularExpression folder(QStringLiteral("\"/[^\"]*/"));
    QString text = notice;
    text.remove(QFileInfo(layerPath).absoluteFilePath() + QStringLiteral(": "));
    text = vlt::language::readerText(text.replace(folder, QStringLiteral("\"")));
    return vlt::buildings::asSentence(text);
}

QString reasonIn(const vlt::Error &error, const QString &layerPath)
{
    return error.detail.isEmpty() ? vlt::language::reasonOf(error)
                                  : shortNotice(error.detail, layerPath);
}

struct Reading
{
    vlt::Stoppable<vlt::snapshot::Scene> scene;
    QStringList notices;
};

/// Reads a layer. The mutex makes it wait for a cancelled read that still runs; otherwise the
/// notices of both would be mixed.
Reading readLayer(const QString &path, const QString &project, const vlt::Progress &progress)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    vlt::snapshot::SceneNotices notices;
    Reading reading{vlt::snapshot::readScene(path, project, {}, progress), {}};
    reading.notices = notices.take();
    return reading;
}

} // namespace

VltBuildingPreview::VltBuildingPreview(QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::BuildingPreview>())
{
    m_ui->setupUi(this);
    m_ui->m_pwPbExt->setEnabled(false);
    showMessage({});
    m_ui->m_pwPreview->setElevationDeg(ElevationDeg);
    // A second line of text must not change the size of the view.
    m_ui->m_pwLblScene->setMinimumHeight(2 * fontMetrics().lineSpacing());
    connect(m_ui->m_pwChbAutoRefresh, &QCheckBox::toggled, this,
            [this](bool on) { Q_EMIT autoRefreshChanged(on ? Qt::Checked : Qt::Unchecked); });
    connect(m_ui->m_pwPbRefresh, &QPushButton::clicked, this,
            &VltBuildingPreview::refreshRequested);
    connect(m_ui->m_pwPbExt, &QPushButton::clicked, this, &VltBuildingPreview::resetView);
    connect(m_ui->m_pwPreview, &VltPreviewPane::cameraMoved, this, &VltBuildingPreview::showDrawn);
    if (VltObjectPointing *pointing = m_ui->m_pwPreview->pointing())
        connect(pointing, &VltObjectPointing::picked, this, &VltBuildingPreview::showCard);
    m_ui->m_pwPbNotices->hide();
    connect(m_ui->m_pwPbNotices, &QPushButton::clicked, this,
            [this] { vlt::buildings::showNotices(this, m_notices); });
}

VltBuildingPreview::~VltBuildingPreview() = default;

bool VltBuildingPreview::isAutoRefresh() const
{
    return m_ui->m_pwChbAutoRefresh->isChecked();
}

void VltBuildingPreview::setAutoRefresh(bool on)
{
    m_ui->m_pwChbAutoRefresh->setChecked(on);
}

void VltBuildingPreview::showMessage(const QString &text)
{
    m_ui->m_pwLblScene->setText(text);
    if (!m_scene)
        m_ui->m_pwPreview->setEmptyText(
            text.isEmpty() ? tr("The layer appears here.", "MESS_EMPTY_PREVIEW") : text);
    m_ui->m_pwPbNotices->hide();
}

void VltBuildingPreview::showLayer(const QString &path, const QString &project)
{
    if (path.isEmpty()) {
        showScene({}, {});
        return;
    }
    const auto read = vlt::wizard::waitForValue<Reading>(
        this, tr("Loading the buildings...", "MESS_LOADING_BUILDINGS"),
        [path, project](const vlt::Progress &progress) {
            return readLayer(path, project, progress);
        });
    const bool isRead = read && read->scene;
    if (isRead && read->scene->ok()) {
        QStringList notices = read->notices;
        for (QString &notice : notices)
            notice = shortNotice(notice, path);
        showScene(read->scene->value(), notices);
        return;
    }
    showScene({}, {});
    showMessage(
        isRead ? tr("The buildings cannot be shown: %1", "MESS_BUILDINGS_NOT_SHOWN")
                     .arg(reasonIn(read->scene->error(), path))
               : tr("Loading was stopped; the layer itself is complete.", "MESS_LOADING_STOPPED"));
}

void VltBuildingPreview::showScene(const vlt::snapshot::Scene &scene, const QStringList &notices)
{
    m_ui->m_pwPreview->setCore(scene ? vlt::snapshot::coreOf(*scene) : std::nullopt);
    m_ui->m_pwPreview->showScene(scene, vlt::snapshot::groundUnder(scene, {}),
                                 vlt::snapshot::readingOf(scene));
    m_ui->m_pwPbExt->setEnabled(scene.valid() && m_ui->m_pwPreview->hasView());
    m_scene = scene;
    showMessage({});
    if (!scene) {
        showDrawn();
        return;
    }
    m_ui->m_pwPreview->setMaxDistanceM(NearShare * visibleDistanceM(*scene));
    const QString place = vlt::snapshot::sceneFact(*scene, facts::Centre).value_or(QString());
    if (place != m_place)
        resetView();
    m_place = place;
    showDrawn();

    const QString counts = vlt::buildings::countsText(countsOf(*scene));
    showMessage((QStringList(counts) + notices.mid(0, 1)).join(QLatin1Char('\n')));
    m_notices = notices;
    m_ui->m_pwPbNotices->setVisible(notices.size() > 1);
    m_ui->m_pwPbNotices->setText(
        tr("%1 notices...", "MESS_NOTICES").arg(vlt::language::wholeNumber(notices.size())));
}

/// States how many buildings are near enough to be drawn, if not all are.
void VltBuildingPreview::showDrawn()
{
    m_ui->m_pwPreview->setCaption(
        m_scene ? vlt::buildings::drawnText(
                      vlt::snapshot::drawnBuildings(*m_scene, m_ui->m_pwPreview->pose().eye),
                      static_cast<qint64>(count(*m_scene, facts::Buildings)))
                : QString());
}

void VltBuildingPreview::showCard(int building)
{
    if (building < 0 || !m_scene)
        return;
    VltObjectPointing &pointing = *m_ui->m_pwPreview->pointing();
    pointing.showCard(vlt::buildings::buildingCard(*pointing.objects(),
                                                   static_cast<std::size_t>(building),
                                                   vlt::snapshot::legendTextOf(*m_scene)));
}

void VltBuildingPreview::resetView()
{
    m_ui->m_pwPreview->centerView();
}
