#include "tables/ui/VltTablePage.h"

#include "contract/TableMetadata.h"
#include "language/ErrorText.h"
#include "platform/LayerFile.h"
#include "platform/Settings.h"
#include "tables/SystemObstacle.h"
#include "tables/ui/TabOrder.h"
#include "tables/ui/VltCures.h"
#include "tables/ui/VltMappingPanel.h"
#include "tables/ui/VltSrsSettings.h"
#include "tables/ui/VltTableDetails.h"
#include "ui_TablePage.h"
#include "wizard/base/DraggableIcon.h"
#include "wizard/base/Messages.h"
#include "wizard/base/VltParameterPanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QSettings>
#include <QStyle>

namespace {

/// Maximum width of the input side / the width that it needs; the rest of the page is the preview.
constexpr double RoomyShare = 1.1;
const QString LastUsedDirKey = QStringLiteral("LastUsedDir");

} // namespace

VltTablePage::VltTablePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                           const QString &language,
                           const vlt::tables::TablePageConfiguration &configuration)
    : VltResultPage(wizard, parameters, installDir, language,
                    {configuration.layerBaseName, configuration.settingsPrefix})
    , m_configuration(configuration)
    , m_ui(std::make_unique<Ui::TablePage>())
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->m_pwLeTable); // the line gets the keyboard first
    setTitle(m_configuration.title);
    nameWidgets();
    createPanels();
    connectWidgets();
    m_ui->m_pwInput->installEventFilter(this);
}

VltTablePage::~VltTablePage() = default;

void VltTablePage::nameWidgets()
{
    setObjectName(m_configuration.objectNames.page);
    m_ui->m_pwGbTable->setObjectName(m_configuration.objectNames.group);
    m_ui->m_pwLblTable->setObjectName(m_configuration.objectNames.label);
    m_ui->m_pwLeTable->setObjectName(m_configuration.objectNames.line);
    m_ui->m_pwPbTable->setObjectName(m_configuration.objectNames.button);
    m_ui->m_pwGbTable->setTitle(m_configuration.fileGroup);
    m_ui->m_pwLblTable->setText(m_configuration.fileLabel);
    m_ui->m_pwPbTable->setToolTip(m_configuration.selectFile);
    m_ui->m_pwLblFileInfo->setText(m_configuration.noFile);
    m_ui->m_pwLblDragText->setText(m_configuration.dragText);
    m_ui->m_pwGbPreview->setOwnLayer(m_configuration.ownLayer);
}

void VltTablePage::createPanels()
{
    m_panelSrs = new VltSrsSettings(m_configuration.kind, m_ui->m_pwGbSrs);
    m_ui->m_ptVbSrs->addWidget(m_panelSrs);
    addPanel(m_panelSrs);
    setResult({m_ui->m_ptHbDrag, m_ui->m_pwLblDragText, m_configuration.dragName,
               tr("Drag the layer file into the builder; Ctrl+C copies it, Ctrl+S "
                  "saves it under another name",
                  "MESS_TIP_DRAG")});
    setDropHighlightWidgets({m_ui->m_pwLblTable});
    vlt::snapshot::addInstalledReaders(installDir());
}

void VltTablePage::connectWidgets()
{
    connect(m_ui->m_pwPbTable, &QPushButton::clicked, this, &VltTablePage::openTable);
    connect(m_ui->m_pwLeTable, &QLineEdit::returnPressed, this,
            [this] { readFileInfo(m_ui->m_pwLeTable->text(), false); });
    connect(m_ui->m_pwLeTable, &QLineEdit::editingFinished, this, [this] {
        // The page states the reason if there is no such file; no box opens because the focus left.
        const QString path = m_ui->m_pwLeTable->text();
        if (path != m_pathRead)
            readFileInfo(path, !QFileInfo(path).isFile());
    });
    connect(m_ui->m_pwGbPreview, &VltLayerPreview::symbolicWanted, this,
            &VltTablePage::previewSymbolic);
    connect(m_ui->m_pwGbPreview, &VltLayerPreview::preciseWanted, this,
            &VltTablePage::previewPrecise);
}

void VltTablePage::setParts(VltTableDetails *details, const QList<VltParameterPanel *> &panels)
{
    Q_ASSERT(!m_details);
    m_details = details;
    connect(details, &VltTableDetails::checked, this, &VltTablePage::showArea);
    connect(details, &VltTableDetails::nonePlaced, this, &VltTablePage::leaveEmptyLayer);
    VltLayerPreview *preview = m_ui->m_pwGbPreview;
    connect(details, &VltTableDetails::rowChosen, preview, &VltLayerPreview::selectRow);
    connect(details, &VltTableDetails::rowOpened, preview, &VltLayerPreview::flyToRow);
    connect(preview, &VltLayerPreview::rowPicked, details, &VltTableDetails::chooseRow);
    connect(details->mapping(), &VltMappingPanel::mappingChosen, this, &VltTablePage::useMapping);
    connect(details->mapping(), &VltMappingPanel::savingWanted, this, &VltTablePage::saveMapping);
    m_cures = new VltCures(m_configuration.kind, m_ui->m_pwGbTable);
    connect(m_cures, &VltCures::mappingChosen, this, &VltTablePage::useMapping);
    connect(details, &VltTableDetails::mistakesFound, m_cures, &VltCures::showFindings);
    m_ui->m_ptVbTable->addWidget(m_cures);
    m_ui->m_ptVbTable->addWidget(details);
    for (VltParameterPanel *panel : panels) {
        m_ui->m_ptVbProperties->addWidget(panel);
        addPanel(panel);
    }
    restoreSettings();
    readFileInfo(m_ui->m_pwLeTable->text(), true);
}

void VltTablePage::addBelowPreview(QWidget *part)
{
    m_belowPreview = part;
    QVBoxLayout &column = *m_ui->m_ptVbResult;
    column.setStretchFactor(m_ui->m_pwGbPreview, 2);
    column.insertWidget(column.indexOf(m_ui->m_pwGbPreview) + 1, part, 1);
}

vlt::geodata::SystemPair VltTablePage::systems() const
{
    return {m_panelSrs->sourceSrs(), m_panelSrs->targetSrs()};
}

QString VltTablePage::checkedConnection(const QString &connection) const
{
    return vlt::tables::withTerrain(connection, file() ? file()->terrainArea : std::nullopt);
}

/// Takes back the layer of a table of which nothing can be placed.
void VltTablePage::leaveEmptyLayer()
{
    if (isMaking())
        outdate(); // obstacle() then has the reason
    else if (isShown())
        leaveLayer(m_details->emptyReason().value_or(QString()));
}

void VltTablePage::setStacked(bool stacked)
{
    for (VltParameterPanel *panel : panels())
        panel->setStacked(stacked);
}

/// Makes Tab go through the groups in the order in which they lie on the page, not that of their
/// creation.
///
/// A frame with one of its parts as focus proxy is a stop of its own, and Tab would return to that
/// part forever. Therefore only the parts take the keyboard.
void VltTablePage::orderFocus()
{
    for (QWidget *frame : findChildren<QWidget *>()) {
        if (frame->focusProxy() && frame->isAncestorOf(frame->focusProxy()))
            frame->setFocusProxy(nullptr);
    }
    QWidgetList groups{m_ui->m_pwGbTable};
    for (VltParameterPanel *panel : panels())
        groups << panel;
    groups << m_ui->m_pwGbPreview;
    if (m_belowPreview)
        groups << m_belowPreview;
    groups << dragIcon();

    QWidgetList ordered;
    for (const QWidget *group : std::as_const(groups)) {
        for (QWidget *widget = nextInFocusChain(); widget != this;
             widget = widget->nextInFocusChain()) {
            const bool isStop = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
            if (isStop && (widget == group || group->isAncestorOf(widget)))
                ordered << widget << partsThatStandFor(*widget);
        }
    }
    putInOrder(ordered);
    m_cures->followInTabOrder(m_ui->m_pwPbTable);
}

/// Width at which the input side scrolls only vertically.
int VltTablePage::neededInputWidth() const
{
    return m_ui->m_pwInput->minimumSizeHint().width() +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

/// Width that the screen leaves to the input side.
int VltTablePage::largestInputWidth() const
{
    constexpr int WindowMargins = 80;
    return screen()->availableSize().width() - m_ui->m_ptVbResult->minimumSize().width() -
           WindowMargins;
}

/// Gives the input side a width at which it scrolls only vertically, unless the screen is too
/// narrow.
void VltTablePage::fitInputWidth()
{
    constexpr double ComfortableShare = 0.57;
    const auto wanted = [this] {
        m_ui->m_pwInput->layout()->activate();
        return neededInputWidth();
    };
    setStacked(false);
    m_panelSrs->setNarrow(false);
    setStacked(wanted() > ComfortableShare * screen()->availableSize().width());
    m_panelSrs->setNarrow(wanted() > largestInputWidth());
    m_ui->m_pwSaInput->setMinimumWidth(qMin(wanted(), largestInputWidth()));
    m_ui->m_pwSaInput->setMaximumWidth(static_cast<int>(wanted() * RoomyShare));
}

/// A table that was read may need more width than an empty page.
void VltTablePage::growInputWidth()
{
    const int roomy = static_cast<int>(neededInputWidth() * RoomyShare);
    if (isShown() && roomy > m_ui->m_pwSaInput->maximumWidth())
        m_ui->m_pwSaInput->setMaximumWidth(roomy);
}

bool VltTablePage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->m_pwInput && event->type() == QEvent::LayoutRequest)
        growInputWidth();
    return VltResultPage::eventFilter(watched, event);
}

void VltTablePage::initializePage()
{
    VltResultPage::initializePage();
    orderFocus();
    fitInputWidth();
    m_project = vlt::project::readProjectContext(field(QStringLiteral("ProjectName")).toString());
    readFileInfo(m_ui->m_pwLeTable->text(), true);
}

bool VltTablePage::isComplete() const
{
    return BasePage::isComplete() && file();
}

QString VltTablePage::settingsKey(const QString &name) const
{
    return m_configuration.settingsPrefix + QLatin1Char('/') + name;
}

void VltTablePage::restoreSettings()
{
    const auto settings = vlt::platform::wizardSettings();
    m_fileDir = settings->value(LastUsedDirKey).toString();
    m_ui->m_pwLeTable->setText(settings->value(settingsKey(m_configuration.fileKey)).toString());
    VltResultPage::restoreSettings();
}

void VltTablePage::saveSettings()
{
    const auto settings = vlt::platform::wizardSettings();
    if (!m_fileDir.isEmpty())
        settings->setValue(LastUsedDirKey, m_fileDir);
    settings->setValue(settingsKey(m_configuration.fileKey), m_ui->m_pwLeTable->text());
    VltResultPage::saveSettings();
}

void VltTablePage::droppedFile(const QString &path)
{
    readFileInfo(path, false);
}

void VltTablePage::openTable()
{
    const QString path = QFileDialog::getOpenFileName(
        this, m_configuration.selectFile, m_fileDir,
        QStringLiteral("%1 (*.xls *.xlsx *.xml *.csv)").arg(m_configuration.files));
    if (!path.isEmpty())
        readFileInfo(path, false);
}

void VltTablePage::readFileInfo(const QString &path, bool quiet)
{
    if (isMaking()) // a message box took the focus from the line
        return;
    makeLayer([&] { readFile(path, quiet); });
    Q_EMIT completeChanged();
}

void VltTablePage::readFile(const QString &path, bool quiet)
{
    m_pathRead = path;
    m_refusal = readTable(path);
    const bool isOpened = file() || (m_refusal && !m_refusal->path.isEmpty());
    if (file())
        m_ui->m_pwGbPreview->expectLayer();
    if (isOpened)
        m_fileDir = QFileInfo(path).absolutePath();
    showFile();
    if (m_refusal && !quiet)
        vlt::messages::critical(this, m_refusal->withPath(path), vlt::messages::errorTitle(),
                                vlt::messages::PathPlace::BelowText);
}

void VltTablePage::showFile()
{
    const vlt::tables::TableFileInfo *read = file();
    if (!read) {
        leaveLayer(fileReason());
        m_ui->m_pwLblFileInfo->setText(m_configuration.noFile);
        if (m_overview.excerpt.columns.isEmpty())
            m_details->clear();
        else
            showRefused();
        showCures();
        return;
    }
    m_ui->m_pwLblFileInfo->setText(read->description);
    m_ui->m_pwLeTable->setText(read->filePath);
    showSystems();
    showMapping();
    showDetails();
}

/// Chooses the systems that are suggested for the table.
void VltTablePage::showSystems()
{
    const vlt::tables::TableFileInfo &read = *file();
    if (!read.systems.source.isEmpty())
        m_panelSrs->setSourceSrs(read.systems.source);
    if (!read.systems.target.isEmpty())
        m_panelSrs->setTargetSrs(read.systems.target);
    m_panelSrs->setContext({read.projectSystems, read.terrainArea});
}

void VltTablePage::showMapping()
{
    const vlt::tables::MappingFile mapping = vlt::tables::findMapping(m_pathRead);
    const vlt::tables::TableFileInfo *read = file();
    m_details->mapping()->showTable({m_configuration.kind, read ? read->shape : QString(),
                                     m_overview.roles, m_overview.excerpt, mapping.mapping,
                                     read ? read->second : vlt::geodata::SecondColumns()},
                                    mapping);
    showCures();
}

/// Shows the columns of a refused table, so that the user can state which they are.
void VltTablePage::showRefused()
{
    vlt::tables::MappingFile mapping = vlt::tables::findMapping(m_pathRead);
    if (m_overview.excerpt.columns.isEmpty()) { // all but the choices stays visible
        m_details->mapping()->showRefused(mapping);
    } else {
        vlt::contract::ColumnMapping stated = mapping.mapping;
        if (m_overview.excerpt.headerRows.isEmpty())
            stated.headerRows.emplace(); // such a table is read only if that is stated
        m_details->mapping()->showTable(
            {m_configuration.kind, {}, m_overview.roles, m_overview.excerpt, stated}, mapping);
    }
    m_details->showRefused();
}

/// Shows what can be stated about the table by buttons; a refused one may lack another table.
void VltTablePage::showCures()
{
    using vlt::tables::CoordinateKind;
    const bool areMetres = file() && file()->unit == QLatin1String(vlt::contract::metadata::Meters);
    if (!file() && !m_refusal)
        m_cures->clear();
    else
        m_cures->showTable(m_pathRead, vlt::tables::findMapping(m_pathRead).mapping,
                           areMetres ? CoordinateKind::Projected : CoordinateKind::Geographic,
                           needsSecondTable(m_refusal));
}

/// Keeps what the user states about the table and reads it again.
void VltTablePage::useMapping(const vlt::contract::ColumnMapping &mapping)
{
    if (isMaking())
        return;
    reportFailure(vlt::tables::keepMapping(m_pathRead, mapping));
    makeLayer([this] { readFileAgain(); });
    Q_EMIT completeChanged();
}

void VltTablePage::saveMapping()
{
    if (isMaking())
        return;
    const auto mapping = vlt::tables::findMapping(m_pathRead).mapping;
    reportFailure(vlt::tables::saveBesideTable(m_pathRead, mapping));
    makeLayer([this] { readFileAgain(); });
}

void VltTablePage::reportFailure(const vlt::Result<vlt::Done> &outcome)
{
    if (!outcome)
        vlt::messages::critical(this,
                                {QStringLiteral("MESS_CANT_SAVE_MAPPING"),
                                 QStringLiteral("The choices for the columns cannot be saved"),
                                 outcome.error().path, outcome.error().detail});
}

/// Reads the table with what the user states about it now. If it cannot be read so, the choices
/// stay visible, because the user has to change them.
void VltTablePage::readFileAgain()
{
    const auto suggested = file() ? file()->systems : vlt::geodata::SystemPair();
    m_refusal = readTable(m_pathRead);
    if (!file()) {
        showRefused();
        leaveLayer(fileReason());
        showCures();
        return;
    }
    m_ui->m_pwLblFileInfo->setText(file()->description);
    m_ui->m_pwLeTable->setText(file()->filePath);
    if (file()->systems != suggested) // else the user's choice stays
        showSystems();
    showMapping();
    showDetails();
}

/// Why the table was refused. A refused drop does not change the path in the line, so the text
/// names the file.
QString VltTablePage::fileReason() const
{
    if (!m_refusal || m_refusal->detail.isEmpty())
        return {};
    return tr("%1: %2", "MESS_FILE_REASON")
        .arg(QFileInfo(m_pathRead).fileName(), vlt::language::detailOf(*m_refusal));
}

/// Shows why there is no layer; the text is empty if there is one or no table was chosen.
void VltTablePage::showReason(const QString &reason)
{
    m_ui->m_pwLblReason->setText(reason);
    m_ui->m_pwLblReason->setVisible(!reason.isEmpty());
}

/// Passes the area of a table in degrees to the choosers of systems. Metres give an area only with
/// the right system, which the user may still be choosing.
void VltTablePage::showArea(const vlt::geodata::SystemCheck &checked)
{
    if (!file())
        return;
    const vlt::tables::TableFileInfo &read = *file();
    const bool isInDegrees = read.unit != QLatin1String(vlt::contract::metadata::Meters) &&
                             checked.source.use == vlt::geodata::SrsUse::Geographic;
    if (isInDegrees && checked.extent)
        m_panelSrs->setContext({read.projectSystems, checked.extent});
}

void VltTablePage::beginLayer()
{
    showDemonstration();
    if (file())
        checkRows();
}

std::optional<QString> VltTablePage::obstacle() const
{
    if (!file())
        return fileReason();
    std::optional<vlt::Error> error = missingChoice();
    if (!error)
        error = vlt::tables::systemObstacle(systems());
    if (!error)
        error = vlt::tables::undeclaredObstacle(*file(), systems());
    return error ? std::optional(vlt::messages::textOf(*error)) : m_details->emptyReason();
}

vlt::Stoppable<vlt::Done> VltTablePage::writeLayer(const QString &path,
                                                   vlt::platform::Access access)
{
    const vlt::Result<vlt::tables::TableLayer> layer = composeLayer();
    if (!layer)
        return layer.error();
    if (layer.value().warning)
        vlt::messages::warning(this, layer.value().warning->withPath({}),
                               tr("Error !!!", "MESS_ERREUR"));
    return vlt::platform::writeLayerFile(path, layer.value().text, access);
}

void VltTablePage::showLayer(const QString &path)
{
    showReason({});
    m_ui->m_pwGbPreview->setLayerFile(path, m_project.projectPath);
}

void VltTablePage::showNoLayer(const QString &why)
{
    showReason(why);
    m_ui->m_pwGbPreview->setLayerFile({}, m_project.projectPath);
}

void VltTablePage::showDemonstration()
{
    if (!m_ui->m_pwGbPreview->hasView())
        return;
    const auto scene = vlt::snapshot::readScene(demonstrationUrl());
    if (scene)
        m_ui->m_pwGbPreview->setDemonstration(scene.value());
    else if (file())
        vlt::messages::critical(
            this, vlt::Error::asIs(QStringLiteral("The pylon url didn't return a valid node !")));
}

void VltTablePage::previewSymbolic()
{
    constexpr double BeyondPrecise = 500;
    const double distanceM = preciseDistanceM() + BeyondPrecise;
    if (m_configuration.looksAtMiddle)
        m_ui->m_pwGbPreview->lookAtDemonstration(distanceM);
    else
        m_ui->m_pwGbPreview->lookAtDemonstration(distanceM, 0);
}

void VltTablePage::previewPrecise()
{
    m_ui->m_pwGbPreview->lookAtDemonstration(m_configuration.nearDistanceM,
                                             m_configuration.nearHeightM);
}
