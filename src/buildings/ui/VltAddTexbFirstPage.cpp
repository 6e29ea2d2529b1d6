#include "buildings/ui/VltAddTexbFirstPage.h"

#include "ui_AddTexbFirstPage.h"

#include "buildings/BuildingsSource.h"
#include "buildings/CountsText.h"
#include "buildings/FieldColors.h"
#include "buildings/HeightGuess.h"
#include "buildings/SourceSummary.h"
#include "buildings/ui/FootprintPicker.h"
#include "buildings/ui/RasterMessages.h"
#include "buildings/ui/TerrainPicker.h"
#include "language/VltLanguageManager.h"
#include "platform/Settings.h"
#include "wizard/base/Messages.h"
#include "wizard/base/WheelGuard.h"
#include "wizard/project/ProjectReaders.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QtMath>

using namespace vlt;

namespace {

const QString LastUsedDirKey = QStringLiteral("LastUsedDir");
const QString Colored = QStringLiteral("Colored");
const QString Textured = QStringLiteral("Textured");

constexpr int UnsetPageId = 999; // no page of the wizard has this id

QString settingsKey(const char *name)
{
    return QStringLiteral("AddTexbFirstPage/") + QLatin1String(name);
}

/// Title of the message boxes after Next.
QString refusalTitle()
{
    return dico_label("MESS_ERREUR", "Error !!!");
}

} // namespace

VltAddTexbFirstPage::VltAddTexbFirstPage(QWidget *wizard, SharedParameters &parameters,
                                         const QString &installDir, const QString &language)
    : BasePage(wizard, parameters, installDir, language)
    , m_ui(std::make_unique<Ui::AddTexbFirstPage>())
{
    m_ui->setupUi(this);
    m_footprints = new FootprintPicker(
        this, {m_ui->m_pwLeBuildings, m_ui->m_pwCbLayer, m_ui->m_pwCbHeight}, m_isBusy);
    m_terrain = new TerrainPicker(
        this, {m_ui->m_pwLeDtm, m_ui->m_pwLeNoData, m_ui->m_pwNoDataProgress}, m_isBusy);
    m_counter = new SourceCounter(this);
    setTitle(tr("Buildings", "MESS_PAGE_BUILDINGS"));
    setFocusProxy(m_ui->m_pwLeBuildings); // the line gets the keyboard first
    setDropHighlightWidgets({m_ui->m_pwLblBuildings, m_ui->m_pwLblDtm});
    describeWidgets();
    connectWidgets();
    m_ui->m_pwNoDataProgress->hide();
    m_ui->m_pwLblHeightInfo->hide();
    wizard::guardAgainstStrayWheel(this);
    registerField(QStringLiteral("Buildings*"), m_ui->m_pwLeBuildings);
    registerField(QStringLiteral("Dtm*"), m_ui->m_pwLeDtm);
    registerField(QStringLiteral("Layer*"), m_ui->m_pwCbLayer);
    registerField(QStringLiteral("Height*"), m_ui->m_pwCbHeight);
    registerField(QStringLiteral("Nodata"), m_ui->m_pwLeNoData);
}

VltAddTexbFirstPage::~VltAddTexbFirstPage() = default;

/// Sets the properties of widgets that a form cannot set.
void VltAddTexbFirstPage::describeWidgets()
{
    m_ui->m_pwRbTextured->setIcon(QIcon(QStringLiteral(":/images/textured-buildings.png")));
    m_ui->m_pwRbColored->setIcon(QIcon(QStringLiteral(":/images/colored-buildings.png")));
    m_ui->m_pwRbTextured->setAccessibleDescription(m_ui->m_pwLblTextured->text());
    m_ui->m_pwRbColored->setAccessibleDescription(
        QTextDocumentFragment::fromHtml(m_ui->m_pwLblColored->text()).toPlainText());

    // Otherwise the whole page is grey for a moment whenever it is disabled.
    m_ui->m_pwSaInput->viewport()->setAutoFillBackground(false);
    m_ui->m_pwInput->setAutoFillBackground(false);

    // Each text has a share of the width like its own, so that none wraps before the other.
    m_ui->m_ptGdType->setColumnStretch(
        1, m_ui->m_pwLblTextured->fontMetrics().size(0, m_ui->m_pwLblTextured->text()).width());
    QTextDocument colored;
    colored.setDefaultFont(m_ui->m_pwLblColored->font());
    colored.setHtml(m_ui->m_pwLblColored->text());
    m_ui->m_ptGdType->setColumnStretch(3, qCeil(colored.idealWidth()));

    m_ui->m_pwHeights->setTabOrderBetween(m_ui->m_pwCbHeight, m_ui->m_pwLeDtm);

    // The labels of both groups form one column.
    int width = 0;
    const QWidgetList labels{m_ui->m_pwLblBuildings, m_ui->m_pwLblLayer, m_ui->m_pwLblDtm,
                             m_ui->m_pwLblNoData};
    for (const QWidget *label : labels)
        width = qMax(width, label->sizeHint().width());
    m_ui->m_ptGdBuildings->setColumnMinimumWidth(0, width);
    m_ui->m_ptGdDtm->setColumnMinimumWidth(0, width);
}

void VltAddTexbFirstPage::connectWidgets()
{
    connect(m_ui->m_pwPbBuildings, &QPushButton::clicked, this,
            &VltAddTexbFirstPage::openBuildings);
    connect(m_ui->m_pwPbDtm, &QPushButton::clicked, this, &VltAddTexbFirstPage::openDtm);
    connect(m_ui->m_pwPbNoData, &QPushButton::clicked, this, &VltAddTexbFirstPage::guessNoData);
    connect(m_ui->m_pwCbLayer, &QComboBox::currentIndexChanged, this,
            &VltAddTexbFirstPage::layerChanged);
    connect(m_ui->m_pwCbHeight, &QComboBox::currentIndexChanged, this,
            &VltAddTexbFirstPage::heightChanged);
    connect(m_ui->m_pwHeights, &VltHeightPanel::changed, this, [this] {
        showSummaries();
        Q_EMIT completeChanged();
    });
    connect(m_counter, &SourceCounter::started, this, [this] {
        m_ui->m_pwHeights->showCounts(tr("Counting the buildings...", "MESS_COUNTING_BUILDINGS"),
                                      false);
        m_ui->m_pwHeights->showAdvice({});
    });
    connect(m_counter, &SourceCounter::ended, this, &VltAddTexbFirstPage::showCounts);
    for (const QRadioButton *radio : {m_ui->m_pwRbTextured, m_ui->m_pwRbColored})
        connect(radio, &QRadioButton::clicked, this, &VltAddTexbFirstPage::typeChanged);

    for (const PathPicker *picker :
         std::initializer_list<const PathPicker *>{m_footprints, m_terrain})
        connect(picker, &PathPicker::changed, this, &VltAddTexbFirstPage::showSummaries);
    connect(m_terrain, &TerrainPicker::failed, m_ui->m_pwLblDtmInfo, &QLabel::setText);
    connectLine(m_ui->m_pwLeBuildings, m_footprints);
    connectLine(m_ui->m_pwLeDtm, m_terrain);
}

/// Opens a typed path on Return, with a message if the file cannot be read, and when the line loses
/// the focus, without a message for an unreadable path, which may be unfinished.
void VltAddTexbFirstPage::connectLine(const QLineEdit *line, const PathPicker *picker)
{
    connect(line, &QLineEdit::returnPressed, this, [this, line, picker] {
        if (line->text().isEmpty() || accepts(picker->unreadable()))
            takeTyped(picker);
    });
    connect(line, &QLineEdit::editingFinished, this, [this, line, picker] {
        if (line->text().isEmpty() || !picker->unreadable())
            takeTyped(picker);
    });
}

void VltAddTexbFirstPage::initializePage()
{
    const QString projectName = parameters().value(QStringLiteral("ProjectName")).toString();
    if (projectName != m_projectName) {
        m_projectName = projectName;
        takeProjectFiles();
    }
    BasePage::initializePage();
}

void VltAddTexbFirstPage::takeProjectFiles()
{
    const Result<QString> buildings = project::buildingVectorFile(m_projectName);
    const Result<QString> terrain = project::terrainFile(m_projectName);
    if (!buildings) { // the terrain then has the same error
        if (buildings.error().path.isEmpty())
            messages::critical(this, buildings.error(), refusalTitle());
        else
            messages::warning(this, buildings.error(), refusalTitle());
        return;
    }
    QStringList missing;
    const auto existing = [&missing](const QString &path) {
        if (QFileInfo::exists(path))
            return path;
        missing << path;
        return QString();
    };
    if (!buildings.value().isEmpty()) {
        const QString path = existing(buildings.value());
        m_ui->m_pwLeBuildings->setText(path);
        openVector(path, false);
    }
    if (terrain && !terrain.value().isEmpty()) {
        const QString path = existing(terrain.value());
        m_ui->m_pwLeDtm->setText(path);
        openTerrain(path);
    }
    if (!missing.isEmpty())
        messages::warning(this,
                          {QStringLiteral("MESS_PROJECT_FILES_MISSING"),
                           QStringLiteral("The project names files that do not exist"),
                           missing.join(QLatin1Char('\n'))},
                          refusalTitle());
}

void VltAddTexbFirstPage::restoreSettings()
{
    const auto settings = platform::wizardSettings();
    m_lastUsedDir = settings->value(LastUsedDirKey).toString();
    if (m_ui->m_pwLeBuildings->text().isEmpty())
        openVector(settings->value(settingsKey("Buildings")).toString(), true);
    if (m_ui->m_pwLeDtm->text().isEmpty())
        openTerrain(settings->value(settingsKey("Dtm")).toString());
    const bool isColored = settings->value(settingsKey("Type"), Colored).toString() == Colored;
    m_ui->m_pwRbColored->setChecked(isColored);
    m_ui->m_pwRbTextured->setChecked(!isColored);
}

void VltAddTexbFirstPage::saveSettings()
{
    const auto settings = platform::wizardSettings();
    settings->setValue(LastUsedDirKey, m_lastUsedDir);
    settings->setValue(settingsKey("Buildings"), m_ui->m_pwLeBuildings->text());
    settings->setValue(settingsKey("Layer"), m_ui->m_pwCbLayer->currentIndex());
    settings->setValue(settingsKey("Height"), m_ui->m_pwCbHeight->currentIndex());
    settings->setValue(settingsKey("Dtm"), m_ui->m_pwLeDtm->text());
    settings->setValue(settingsKey("Nodata"), m_ui->m_pwLeNoData->text());
    settings->setValue(settingsKey("Type"), m_ui->m_pwRbColored->isChecked() ? Colored : Textured);
    buildings::publishBuildingsSource(chosenSource(), parameters());
}

buildings::BuildingsSource VltAddTexbFirstPage::chosenSource() const
{
    const geodata::Extent extent = m_footprints->extent().value_or(geodata::Extent{});
    buildings::BuildingsSource source;
    source.file = m_ui->m_pwLeBuildings->text();
    source.layer = m_ui->m_pwCbLayer->currentData().toString();
    source.heightField = m_ui->m_pwCbHeight->currentData().toString();
    if (const geodata::PolygonLayer *layer = m_footprints->layer())
        source.colorFields = buildings::colorFields(layer->fields);
    source.heights = m_ui->m_pwHeights->heights();
    source.where = m_ui->m_pwHeights->where();
    if (source.heightField.isEmpty()) { // the list has no 64-bit integers, the second one has
        source.heightField = QString::fromStdString(source.heights.elseField);
        source.heights.unit = source.heights.elseUnit;
        source.heights.elseField.clear();
        source.heights.elseUnit = {};
    }
    source.terrainFile = m_ui->m_pwLeDtm->text();
    source.terrainNoData = m_ui->m_pwLeNoData->text();
    source.xCenter = extent.centerX();
    source.yCenter = extent.centerY();
    return source;
}

int VltAddTexbFirstPage::nextId() const
{
    const auto id = m_ui->m_pwRbColored->isChecked() ? m_coloredPageId : m_texturedPageId;
    return id.value_or(UnsetPageId);
}

bool VltAddTexbFirstPage::accepts(const std::optional<Error> &refusal)
{
    if (refusal)
        messages::warning(this, *refusal, refusalTitle());
    return !refusal;
}

/// Whether the extent of the buildings is known. If not, a warning is shown, unless the user
/// stopped the search.
bool VltAddTexbFirstPage::isPlaced()
{
    if (!m_footprints->locate())
        return false;
    if (m_footprints->extent()->isPlaced())
        return true;
    return accepts(Error{QStringLiteral("MESS_ERR_NO_EXTENT"),
                         QStringLiteral("No building of this layer has a position"),
                         m_ui->m_pwCbLayer->currentText()});
}

bool VltAddTexbFirstPage::validatePage()
{
    if (m_isBusy || !accepts(m_footprints->unreadable()) || !accepts(m_terrain->unreadable()))
        return false;
    takeTyped(m_footprints);
    takeTyped(m_terrain);
    if (!isComplete() || !accepts(m_terrain->wrongNoData()) ||
        !accepts(m_footprints->wrongCondition(m_ui->m_pwHeights->where())) || !isPlaced())
        return false;
    saveSettings();
    return true;
}

void VltAddTexbFirstPage::takeTyped(const PathPicker *picker)
{
    const std::optional<QString> path = picker->typedPath();
    if (!path)
        return;
    if (picker == m_terrain)
        openTerrain(*path);
    else
        openVector(*path, false);
}

QString VltAddTexbFirstPage::pick(const QString &title, const QString &files)
{
    QString path = QFileDialog::getOpenFileName(this, title, m_lastUsedDir,
                                                QStringLiteral("%1 (*.*)").arg(files));
    if (!path.isEmpty())
        m_lastUsedDir = QFileInfo(path).absolutePath();
    return path;
}

void VltAddTexbFirstPage::openBuildings()
{
    const QString path = pick(tr("Select the buildings file to display", "MESS_SELECT_BUILDINGS_F"),
                              tr("Vector Files", "MESS_VECTOR_FILES"));
    if (!path.isEmpty())
        openVector(path, false);
}

void VltAddTexbFirstPage::openDtm()
{
    const QString path = pick(tr("Select the raster DTM", "MESS_SELECT_DTM"),
                              tr("Raster Files", "MESS_RASTER_FILES"));
    if (!path.isEmpty())
        openTerrain(path);
}

void VltAddTexbFirstPage::droppedFile(const QString &path)
{
    if (m_isBusy)
        return;
    const std::optional<TerrainPicker::Summary> terrain = m_terrain->read(path);
    if (!terrain) // stopped by the user
        return;
    if (*terrain) {
        m_lastUsedDir = QFileInfo(path).absolutePath();
        m_terrain->show(path, *terrain);
    } else if (geodata::isVirtualRaster(path))
        buildings::warnOfRaster(this, buildings::RasterProblem::CannotOpen, path,
                                terrain->error().detail);
    else
        m_footprints->openDropped(path);
}

void VltAddTexbFirstPage::openVector(const QString &path, bool silent)
{
    m_footprints->open(path, silent);
}

void VltAddTexbFirstPage::openTerrain(const QString &path)
{
    if (!m_isBusy && !path.isEmpty())
        m_lastUsedDir = QFileInfo(path).absolutePath();
    m_terrain->open(path);
}

void VltAddTexbFirstPage::guessNoData()
{
    m_terrain->guessNoData();
}

void VltAddTexbFirstPage::layerChanged(int index)
{
    if (index >= 0)
        m_ui->m_pwHeights->offer(m_footprints->layer());
    m_footprints->chooseLayer(index);
}

void VltAddTexbFirstPage::heightChanged(int /*index*/)
{
    m_ui->m_pwHeights->suggestUnit(m_ui->m_pwCbHeight->currentData().toString());
    showSummaries();
}

void VltAddTexbFirstPage::typeChanged() {}

bool VltAddTexbFirstPage::isComplete() const
{
    const contract::BuildingHeights heights = m_ui->m_pwHeights->heights();
    if (heights.base == contract::BaseRule::Field && heights.baseField.empty())
        return false;
    return BasePage::isComplete() || (m_footprints->layer() && !m_ui->m_pwLeDtm->text().isEmpty() &&
                                      !heights.elseField.empty());
}

/// What the user should know about the choice of the fields; empty for nothing.
QString VltAddTexbFirstPage::heightHint() const
{
    const geodata::PolygonLayer *layer = m_footprints->layer();
    if (layer == nullptr)
        return {};
    const contract::BuildingHeights heights = m_ui->m_pwHeights->heights();
    if (heights.base == contract::BaseRule::Field && heights.baseField.empty())
        return tr("Choose the field with the ground height.", "MESS_BASE_FIELD_MISSING");
    const QString chosen = m_ui->m_pwCbHeight->currentData().toString();
    const QString other = QString::fromStdString(heights.elseField);
    const QString likelier = buildings::likelierHeightField(*layer, chosen);
    if (chosen.isEmpty() ? !other.isEmpty() : !other.isEmpty() && other == likelier)
        return {};
    if (!likelier.isEmpty() && m_ui->m_pwCbHeight->findData(likelier) < 0)
        return tr("The field \"%1\" probably has the heights: choose it at \"%2\".",
                  "MESS_HEIGHT_LIKELY_ELSE")
            .arg(likelier, dico_label("MESS_ELSE_FROM", "Else from"));
    return buildings::heightHint(*layer, chosen);
}

void VltAddTexbFirstPage::showSummaries()
{
    const geodata::PolygonLayer *layer = m_footprints->layer();
    const std::optional<geodata::Extent> &extent = m_footprints->extent();
    const std::optional<geodata::RasterSummary> &terrain = m_terrain->summary();
    m_ui->m_pwLblBuildingsInfo->setText(layer ? buildings::layerSummary(*layer, extent)
                                              : QString());
    const QString hint = heightHint();
    m_ui->m_pwLblHeightInfo->setText(hint);
    m_ui->m_pwLblHeightInfo->setVisible(!hint.isEmpty());
    m_ui->m_pwLblDtmInfo->setText(terrain ? buildings::terrainSummary(*terrain, layer, extent)
                                          : QString());
    countSource();
}

/// Counts what would be drawn from the files that are open.
void VltAddTexbFirstPage::countSource()
{
    const geodata::PolygonLayer *layer = m_footprints->layer();
    buildings::BuildingsSource source = chosenSource();
    if (!m_terrain->summary())
        source.terrainFile.clear();
    const auto &heights = source.heights;
    const bool isOpen = heights.base != contract::BaseRule::Field || !heights.baseField.empty();
    if (layer != nullptr && isOpen && !source.heightField.isEmpty()) {
        m_counter->count(source, *layer);
        return;
    }
    m_counter->clear();
    m_ui->m_pwHeights->showCounts({}, false);
    m_ui->m_pwHeights->showAdvice({});
}

void VltAddTexbFirstPage::showCounts(const SourceCounter::Outcome &outcome)
{
    const auto nothing = outcome.counted ? buildings::nothingDrawnText(outcome.counted.value())
                                         : std::optional(outcome.counted.error().text);
    m_ui->m_pwHeights->showCounts(nothing ? buildings::asSentence(*nothing)
                                          : buildings::countsLines(outcome.counted.value()),
                                  nothing.has_value());
    m_ui->m_pwHeights->showAdvice(outcome.advice);
}
