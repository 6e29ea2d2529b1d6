#include "sites/ui/VltAddSitePage.h"

#include "platform/Settings.h"
#include "sites/SiteLayer.h"
#include "sites/TableTexts.h"
#include "sites/ui/VltSiteDetails.h"
#include "sites/ui/VltSiteProperties.h"
#include "sites/ui/VltSrsSettings.h"
#include "ui_AddSitePage.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/DraggableIcon.h"
#include "wizard/base/Messages.h"
#include "wizard/base/TemporaryLayerFile.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSettings>
#include <QStyle>

using vlt::sites::SiteFileInfo;

namespace {

const QString SettingsPrefix = QStringLiteral("AddSitePage");
const QString SiteFileKey = QStringLiteral("AddSitePage/SiteFile");
const QString LastUsedDirKey = QStringLiteral("LastUsedDir");
constexpr int OwnSitesDelayMs = 400;

/// The file and why it was refused, as two lines.
QString refusalDetail(const QString &path, const QString &reason)
{
    const QString translated = vlt::sites::tableText(reason);
    return translated.isEmpty() ? path : path + QLatin1Char('\n') + translated;
}

} // namespace

VltAddSitePage::VltAddSitePage(QWidget *wizard, SharedParameters &parameters,
                               const QString &installDir, const QString &language)
    : BasePage(wizard, parameters, installDir, language)
    , m_ui(std::make_unique<Ui::AddSitePage>())
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->m_pwLeSite); // where the keyboard starts
    setTitle(tr("Site layer", "MESS_SITE_LAYER_TITLE"));
    createPanels();
    connectWidgets();
    VltAddSitePage::restoreSettings();
}

VltAddSitePage::~VltAddSitePage() = default;

void VltAddSitePage::createPanels()
{
    m_panelDetails = new VltSiteDetails(m_ui->m_pwGbSites);
    m_ui->m_ptVbSites->addWidget(m_panelDetails);
    m_panelSrs = new VltSrsSettings(QStringLiteral("site"), m_ui->m_pwGbSrs);
    m_ui->m_ptVbSrs->addWidget(m_panelSrs);
    m_panelProperties = new VltSiteProperties(installDir(), language(), m_ui->m_pwInput);
    m_ui->m_ptVbProperties->addWidget(m_panelProperties);

    constexpr QSize DragIconSize(72, 72);
    const QIcon dragIcon(QStringLiteral(":/images/drag-drop-icon.png"));
    m_pwDragIcon = new DraggableIcon(dragIcon.pixmap(DragIconSize, qApp->devicePixelRatio()), this);
    m_pwDragIcon->setObjectName(QStringLiteral("m_pwDragIcon"));
    m_pwDragIcon->setAccessibleName(tr("Site layer to drag into the builder", "MESS_DRAG_NAME"));
    m_pwDragIcon->setToolTip(tr("Drag the layer file into the builder; Ctrl+C copies it, Ctrl+S "
                                "saves it under another name",
                                "MESS_TIP_DRAG"));
    m_ui->m_ptHbDrag->addWidget(m_pwDragIcon);
    setDropHighlightWidgets({m_ui->m_pwLblSite});

    vlt::snapshot::addReaderDirectory(installDir() + QStringLiteral("/driver"));
    for (QPushButton *button : {m_ui->m_pwPbSymbolic, m_ui->m_pwPbPrecise, m_ui->m_pwPbOwnSites})
        button->setEnabled(m_ui->m_pwPreview->hasView());
}

void VltAddSitePage::connectWidgets()
{
    connect(m_ui->m_pwPbSite, &QPushButton::clicked, this, &VltAddSitePage::openSites);
    connect(m_ui->m_pwLeSite, &QLineEdit::editingFinished, this, [this] {
        const QString path = m_ui->m_pwLeSite->text();
        if (path != m_pathRead && QFileInfo(path).isFile())
            readSiteFileInfo(path, false);
    });
    connect(m_panelSrs, &VltSrsSettings::parameterChanged, this, &VltAddSitePage::updatePreview);
    connect(m_panelProperties, &VltSiteProperties::parameterChanged, this,
            &VltAddSitePage::updatePreview);
    connect(m_ui->m_pwPbSymbolic, &QPushButton::clicked, this, &VltAddSitePage::previewSymbolic);
    connect(m_ui->m_pwPbPrecise, &QPushButton::clicked, this, &VltAddSitePage::previewPrecise);
    connect(m_ui->m_pwPbOwnSites, &QPushButton::clicked, this, &VltAddSitePage::chooseScene);
    connect(&m_ownSitesTimer, &QTimer::timeout, this, &VltAddSitePage::refreshOwnSites);
    m_ownSitesTimer.setSingleShot(true);
    m_ownSitesTimer.setInterval(OwnSitesDelayMs);
    m_ui->m_pwLeSite->installEventFilter(this);
}

/// Return takes the typed path and goes no further: the wizard would press one of its buttons.
bool VltAddSitePage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->m_pwLeSite && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            readSiteFileInfo(m_ui->m_pwLeSite->text(), false);
            return true;
        }
    }
    return BasePage::eventFilter(watched, event);
}

/// The input side scrolls upwards and downwards only, unless the screen is too narrow for it.
void VltAddSitePage::fitInputWidth()
{
    constexpr double ComfortableShare = 0.57;
    constexpr int WindowMargins = 80;
    const int screenWidth = screen()->availableSize().width();
    const auto wanted = [this] {
        m_ui->m_pwInput->layout()->activate();
        return m_ui->m_pwInput->minimumSizeHint().width() +
               style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    };
    m_panelProperties->setStacked(false);
    m_panelProperties->setStacked(wanted() > ComfortableShare * screenWidth);
    const int most = screenWidth - m_ui->m_ptVbResult->minimumSize().width() - WindowMargins;
    m_ui->m_pwSaInput->setMinimumWidth(qMin(wanted(), most));
}

void VltAddSitePage::initializePage()
{
    BasePage::initializePage();
    fitInputWidth();
    m_project = vlt::sites::readProjectContext(field(QStringLiteral("ProjectName")).toString());
    m_isActive = true;
    readSiteFileInfo(m_ui->m_pwLeSite->text(), true);
}

bool VltAddSitePage::validatePage()
{
    return vlt::messages::confirmed(
        this, tr("Voulez-vous quitter l'application ?", "MESS_QUEST_QUIT_APP"));
}

void VltAddSitePage::restoreSettings()
{
    const auto settings = vlt::platform::wizardSettings();
    m_siteFileDir = settings->value(LastUsedDirKey).toString();
    m_ui->m_pwLeSite->setText(settings->value(SiteFileKey).toString());
    m_panelProperties->loadSettings(SettingsPrefix);
    m_panelSrs->loadSettings(SettingsPrefix);
}

void VltAddSitePage::saveSettings()
{
    const auto settings = vlt::platform::wizardSettings();
    if (!m_siteFileDir.isEmpty())
        settings->setValue(LastUsedDirKey, m_siteFileDir);
    settings->setValue(SiteFileKey, m_ui->m_pwLeSite->text());
    m_panelProperties->saveSettings(SettingsPrefix);
    m_panelSrs->saveSettings(SettingsPrefix);
}

void VltAddSitePage::droppedFile(const QString &path)
{
    readSiteFileInfo(path, false);
}

void VltAddSitePage::openSites()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Select the site file to use", "MESS_SELECT_SITE_FILE"), m_siteFileDir,
        QStringLiteral("%1 (*.xls *.xlsx *.xml *.csv)").arg(tr("Site files", "MESS_SITE_FILES")));
    if (!path.isEmpty())
        readSiteFileInfo(path, false);
}

void VltAddSitePage::readSiteFileInfo(const QString &path, bool quiet)
{
    if (m_isReading) // a box of this very read took the focus out of the line
        return;
    m_isReading = true;
    m_pathRead = path;
    const auto read = vlt::wizard::waitForValue<SiteFileInfo>(
        this, tr("Reading the site file...", "MESS_READING_SITES"),
        [path, project = m_project] { return vlt::sites::readSiteFileInfo(path, project); });
    m_file = read.value_or(SiteFileInfo());
    if (!m_file.fileDir.isEmpty())
        m_siteFileDir = m_file.fileDir;
    showFile(m_file);
    if (m_file.error && !quiet)
        vlt::messages::critical(this, *m_file.error, vlt::messages::errorTitle(),
                                refusalDetail(path, m_file.errorDetail));
    createLayerFile();
    m_isReading = false;
}

void VltAddSitePage::showFile(const SiteFileInfo &file)
{
    // a refused drop leaves the path of the line as it was: the reason names its file itself
    m_ui->m_pwLblReason->setText(
        tr("%1: %2", "MESS_FILE_REASON")
            .arg(QFileInfo(m_pathRead).fileName(), vlt::sites::tableText(file.errorDetail)));
    m_ui->m_pwLblReason->setVisible(!file.errorDetail.isEmpty());
    if (!file.valid) {
        m_pwDragIcon->setLayerFile({});
        if (m_ui->m_pwPbOwnSites->isChecked())
            chooseScene(false);
        m_panelDetails->clear();
        m_ui->m_pwLblFileInfo->setText(tr(
            "No sites file defined.\nSelect the sites file to display.", "MESS_NO_SITE_DEFINED"));
        return;
    }
    m_ui->m_pwLblFileInfo->setText(file.description);
    m_ui->m_pwLeSite->setText(file.filePath);
    if (!file.systems.source.isEmpty())
        m_panelSrs->setSourceSrs(file.systems.source);
    if (!file.systems.target.isEmpty())
        m_panelSrs->setTargetSrs(file.systems.target);
    m_panelDetails->showFile(file);
}

void VltAddSitePage::updatePreview()
{
    createLayerFile();
}

/// Changes that arrive while a message box is open are folded into one further run.
void VltAddSitePage::createLayerFile()
{
    m_createAgain = true;
    if (m_isCreating)
        return;
    m_isCreating = true;
    while (m_createAgain) {
        m_createAgain = false;
        m_pwDragIcon->setLayerFile({});
        if (m_isActive && m_file.valid) {
            showPylon();
            writeLayerFile();
        }
    }
    m_ui->m_pwLblDragText->setEnabled(m_pwDragIcon->isEnabled());
    m_ui->m_pwPbOwnSites->setEnabled(m_ui->m_pwPreview->hasView() && m_pwDragIcon->isEnabled());
    m_isCreating = false;
}

/// Loads the demonstration pylon; the first one is shown from where the whole of it is seen.
void VltAddSitePage::showPylon()
{
    if (!m_ui->m_pwPreview->hasView())
        return;
    const auto scene =
        vlt::snapshot::readScene(m_panelProperties->buildPreviewPylonUrl(QStringLiteral("site")));
    if (!scene) {
        vlt::messages::critical(
            this, {{}, QStringLiteral("The pylon url didn't return a valid node !"), {}});
        return;
    }
    m_pylon = scene.value();
    if (!m_ui->m_pwPbOwnSites->isChecked())
        m_ui->m_pwPreview->showScene(m_pylon);
}

bool VltAddSitePage::showOwnSites()
{
    const QString layer = m_pwDragIcon->layerFile();
    if (layer.isEmpty())
        return false;
    const QScopedValueRollback<bool> loading(m_isLoading, true);
    const QString project = m_project.projectPath;
    const auto read = vlt::wizard::waitForValue<vlt::Result<vlt::snapshot::Scene>>(
        this, tr("Loading the sites...", "MESS_LOADING_SITES"),
        [layer, project] { return vlt::snapshot::readScene(layer, project); });
    if (read && read->ok()) {
        m_ui->m_pwPreview->showScene(read->value());
        return true;
    }
    if (read)
        vlt::messages::critical(this,
                                {QStringLiteral("MESS_CANT_SHOW_LAYER"),
                                 QStringLiteral("The layer cannot be shown"), layer},
                                vlt::messages::errorTitle(), read->error().text);
    return false;
}

/// After a change: the layer is another one, the camera stays where the user put it.
void VltAddSitePage::refreshOwnSites()
{
    if (!m_ui->m_pwPbOwnSites->isChecked())
        return;
    if (m_isReading || m_isCreating || m_isLoading) // a box is open
        m_ownSitesTimer.start();
    else if (!m_pwDragIcon->layerFile().isEmpty() && !showOwnSites())
        chooseScene(false);
}

/// Own sites or the demonstration pylon, whose place the camera of the buttons is made for.
void VltAddSitePage::chooseScene(bool ownSites)
{
    const bool isShown = ownSites && showOwnSites();
    m_ui->m_pwPbOwnSites->setChecked(isShown);
    if (!isShown && m_pylon)
        m_ui->m_pwPreview->showScene(m_pylon);
    m_ui->m_pwPreview->centerView();
}

void VltAddSitePage::previewSymbolic()
{
    constexpr double BeyondPrecise = 500;
    chooseScene(false);
    m_ui->m_pwPreview->placeCamera(
        m_panelProperties->representation().realisticDistance + BeyondPrecise, 0);
}

void VltAddSitePage::previewPrecise()
{
    constexpr double NearDistance = 50;
    constexpr double LookedAtHeight = 13;
    chooseScene(false);
    m_ui->m_pwPreview->placeCamera(NearDistance, LookedAtHeight);
}

void VltAddSitePage::writeLayerFile()
{
    vlt::sites::SiteLayerInput input;
    input.file = m_file;
    input.sourceSrs = m_panelSrs->sourceSrs();
    input.targetSrs = m_panelSrs->targetSrs();
    input.representation = m_panelProperties->representation();
    input.catalogues = m_panelProperties->catalogues();
    input.project = m_project;
    input.installDir = installDir();
    input.language = language();
    m_panelDetails->check(vlt::sites::placingConnection(input));
    const vlt::Result<vlt::sites::SiteLayer> layer = vlt::sites::makeSiteLayer(input);
    if (!layer) {
        vlt::messages::critical(this, layer.error());
        return;
    }
    if (layer.value().warning && !m_missingPageTold)
        vlt::messages::warning(this, {layer.value().warning->key, layer.value().warning->text, {}},
                               tr("Error !!!", "MESS_ERREUR"));
    m_missingPageTold = layer.value().warning.has_value();

    const QString path = vlt::wizard::temporaryLayerFileName(QStringLiteral("sites"));
    const auto written =
        vlt::sites::writeSiteLayer(path, layer.value().text, vlt::platform::Access::UserOnly);
    if (!written) {
        vlt::messages::critical(this, written.error());
        return;
    }
    m_pwDragIcon->setLayerFile(path);
    m_ownSitesTimer.start();
    saveSettings();
}
