#include "buildings/ui/VltBuildingPreview.h"

#include "ui_BuildingPreview.h"

#include "snapshot/SceneNotices.h"
#include "text/RichText.h"
#include "wizard/base/BusyWait.h"

#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <osg/LOD>
#include <osg/NodeVisitor>

#include <algorithm>
#include <limits>

namespace {

/// From farther away than this share of the visibility too little would be seen.
constexpr double NearShare = 0.85;

/// Finds the distance within which everything of a scene is drawn.
class Visibility : public osg::NodeVisitor
{
public:
    Visibility() : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN) {}

    void apply(osg::LOD &levels) override
    {
        if (levels.getRangeMode() == osg::LOD::DISTANCE_FROM_EYE_POINT) {
            double farthestM = 0;
            for (unsigned level = 0; level < levels.getNumRanges(); ++level)
                farthestM = std::max<double>(farthestM, levels.getMaxRange(level));
            m_distanceM = std::min(m_distanceM, farthestM);
        }
        traverse(levels);
    }

    /// Without end where there are no such levels.
    double distanceM() const { return m_distanceM; }

private:
    double m_distanceM = std::numeric_limits<double>::infinity();
};

/// The value of a line "key=value" among those that tell what a scene holds.
std::string fact(const osg::Node &scene, const std::string &key)
{
    for (const std::string &line : scene.getDescriptions()) {
        if (line.starts_with(key + '='))
            return line.substr(key.size() + 1);
    }
    return {};
}

int count(const osg::Node &scene, const std::string &key)
{
    return QString::fromStdString(fact(scene, key)).toInt();
}

/// The page knows the layer, which readers name first, and where the files that they name lie.
QStringList shortNotices(QStringList notices, const QString &layerPath)
{
    static const QRegularExpression folder(QStringLiteral("\"/[^\"]*/"));
    const QString layer = QFileInfo(layerPath).absoluteFilePath() + QStringLiteral(": ");
    for (QString &notice : notices)
        notice.remove(layer).replace(folder, QStringLiteral("\""));
    return notices;
}

} // namespace

VltBuildingPreview::VltBuildingPreview(QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::BuildingPreview>())
{
    m_ui->setupUi(this);
    m_ui->m_pwPbExt->setEnabled(false);
    // a second line of text must not change the size of the view
    m_ui->m_pwLblScene->setMinimumHeight(2 * fontMetrics().lineSpacing());
    connect(m_ui->m_pwChbAutoRefresh, &QCheckBox::stateChanged, this,
            &VltBuildingPreview::autoRefreshChanged);
    connect(m_ui->m_pwPbRefresh, &QPushButton::clicked, this,
            &VltBuildingPreview::refreshRequested);
    connect(m_ui->m_pwPbExt, &QPushButton::clicked, this, &VltBuildingPreview::resetView);
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
    constexpr int MostLines = 3;
    const QStringList lines = text.split(QLatin1Char('\n'));
    m_ui->m_pwLblScene->setText(lines.mid(0, MostLines).join(QLatin1Char('\n')));
    m_ui->m_pwLblScene->setToolTip(lines.size() > MostLines ? vlt::text::asRichText(text)
                                                            : QString());
}

void VltBuildingPreview::showLayer(const QString &path, const QString &project)
{
    using Read = vlt::Result<vlt::snapshot::Scene>;
    if (path.isEmpty() || !m_ui->m_pwPreview->hasView()) {
        showScene({}, {});
        return;
    }
    vlt::snapshot::SceneNotices notices;
    const auto read = vlt::wizard::waitForValue<Read>(
        this, tr("Loading the buildings...", "MESS_LOADING_BUILDINGS"),
        [path, project](const vlt::wizard::WorkProgress &progress) {
            return vlt::snapshot::readScene(path, project, vlt::snapshot::TerrainSurface::Hidden,
                                            progress);
        });
    if (read && read->ok()) {
        showScene(read->value(), shortNotices(notices.take(), path));
        return;
    }
    showScene({}, {});
    showMessage(
        read ? tr("The buildings cannot be shown: %1", "MESS_BUILDINGS_NOT_SHOWN")
                   .arg(read->error().text)
             : tr("Loading was stopped; the layer itself is complete.", "MESS_LOADING_STOPPED"));
}

void VltBuildingPreview::showScene(const vlt::snapshot::Scene &scene, const QStringList &notices)
{
    m_ui->m_pwPreview->showScene(scene);
    m_ui->m_pwPbExt->setEnabled(scene.valid());
    showMessage({});
    if (!scene)
        return;
    Visibility visibility;
    scene->accept(visibility);
    m_ui->m_pwPreview->setFarthestM(NearShare * visibility.distanceM());
    const std::string place = fact(*scene, "centre");
    if (place != m_place)
        resetView();
    m_place = place;

    const QLocale numbers;
    const int leftOut = count(*scene, "leftOut");
    const QString shown = numbers.toString(count(*scene, "buildings"));
    const QString counts = leftOut > 0
                               ? tr("Buildings: %1, left out: %2", "MESS_BUILDINGS_LEFT_OUT")
                                     .arg(shown, numbers.toString(leftOut))
                               : tr("Buildings: %1", "MESS_BUILDINGS_SHOWN").arg(shown);
    showMessage((QStringList(counts) + notices).join(QLatin1Char('\n')));
}

void VltBuildingPreview::resetView()
{
    m_ui->m_pwPreview->centerView();
}
