#include "tables/ui/VltSrsSettings.h"

#include "geodata/DatasetReferenceCode.h"
#include "geodata/SrsDefinition.h"
#include "geodata/SrsFacts.h"
#include "platform/Settings.h"
#include "srs/ui/VltSrsChooser.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

namespace {

const QString LastUsedDir = QStringLiteral("LastUsedDir");

QLabel *nameLabel(const VltSrsChooser &chooser)
{
    return chooser.findChild<QLabel *>(QStringLiteral("m_pLSrsLabel"));
}

} // namespace

VltSrsSettings::VltSrsSettings(vlt::contract::TableKind kind, QWidget *parent)
    : VltParameterPanel(parent)
    , m_pwSource(
          new VltSrsChooser(this,
                            kind == vlt::contract::TableKind::Links
                                ? tr("Cartographic system of the link file", "MESS_SRS_LINK_FILE")
                                : tr("Cartographic system of the site file", "MESS_SRS_SITE_FILE"),
                            true, true))
    , m_pwTarget(new VltSrsChooser(
          this, tr("Cartographic system of the target project", "MESS_SRS_PROJECT"), true, true))
    , m_pwPbReadSrs(
          new QPushButton(tr("Read system from a datasource...", "MESS_READ_SRS_FROM_DS"), this))
{
    if (kind == vlt::contract::TableKind::Links)
        m_pwSource->setToolTip(tr("Projection of the file", "MESS_PROJ_OF_THE_FILE"));
    m_pwPbReadSrs->setToolTip(
        tr("Take the target system from a raster or vector file", "MESS_TIP_READ_SRS"));
    m_pwPbReadSrs->setAutoDefault(false);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pwSource);
    layout->addWidget(m_pwTarget);
    layout->addWidget(m_pwPbReadSrs, 0, Qt::AlignRight);

    int labelWidth = 0;
    for (const VltSrsChooser *chooser : {m_pwSource, m_pwTarget})
        labelWidth = qMax(labelWidth, nameLabel(*chooser)->sizeHint().width());
    for (VltSrsChooser *chooser : {m_pwSource, m_pwTarget}) {
        nameLabel(*chooser)->setMinimumWidth(labelWidth);
        chooser->populate();
        connect(chooser, &VltSrsChooser::SrsSelected, this, &VltSrsSettings::parameterChanged);
    }
    connect(m_pwPbReadSrs, &QPushButton::clicked, this,
            &VltSrsSettings::getTargetEpsgCodeFromDataSource);
}

void VltSrsSettings::setNarrow(bool narrow)
{
    constexpr int Characters = 8;
    for (const VltSrsChooser *chooser : {m_pwSource, m_pwTarget}) {
        auto *combo = chooser->findChild<QComboBox *>();
        const int frame = 2 * combo->sizeHint().height(); // with the arrow
        const int few = Characters * combo->fontMetrics().averageCharWidth() + frame;
        combo->setMinimumWidth(narrow ? few : 0); // 0: as much as it wants
    }
}

void VltSrsSettings::setSourceSrs(const QString &systemText)
{
    m_pwSource->setSystem(systemText);
}

void VltSrsSettings::setTargetSrs(const QString &systemText)
{
    m_pwTarget->setSystem(systemText);
}

void VltSrsSettings::setContext(const vlt::srs::SrsContext &context)
{
    m_pwSource->setContext(context);
    m_pwTarget->setContext(context);
}

QString VltSrsSettings::sourceSrs() const
{
    return m_pwSource->currentSystem();
}

QString VltSrsSettings::targetSrs() const
{
    return m_pwTarget->currentSystem();
}

void VltSrsSettings::loadSettings(const QString &prefix)
{
    const QString system =
        vlt::platform::wizardSettings()->value(prefix + QStringLiteral("/TargetSrs")).toString();
    if (!system.isEmpty())
        m_pwTarget->setSystem(system);
}

void VltSrsSettings::saveSettings(const QString &prefix)
{
    vlt::platform::wizardSettings()->setValue(prefix + QStringLiteral("/TargetSrs"), targetSrs());
}

void VltSrsSettings::getTargetEpsgCodeFromDataSource()
{
    const auto settings = vlt::platform::wizardSettings();
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Select a geodataset (raster or vector)", "MESS_SELECT_DS"),
        settings->value(LastUsedDir).toString(),
        QStringLiteral("%1 (*.*)").arg(tr("All files", "MESS_ALL_FILES")));
    if (path.isEmpty())
        return;
    settings->setValue(LastUsedDir, QFileInfo(path).absolutePath());

    const auto code = vlt::wizard::waitForValue<vlt::Result<QString>>(
        this, tr("Reading the coordinate system...", "MESS_READING_SRS"),
        [path] { return vlt::geodata::datasetReferenceCode(path); });
    if (!code)
        return;
    if (!code->ok()) {
        vlt::messages::warning(this, code->error(), tr("Warning", "MESS_ATTENTION"));
        return;
    }
    const QString system = vlt::geodata::listedCode(code->value());
    if (const auto refusal = vlt::geodata::srsRefusal(vlt::geodata::srsFacts(system))) {
        vlt::messages::warning(this, *refusal, tr("Warning", "MESS_ATTENTION"));
        return;
    }
    m_pwTarget->setSystem(system);
    Q_EMIT parameterChanged();
}
