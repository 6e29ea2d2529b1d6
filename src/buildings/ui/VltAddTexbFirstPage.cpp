#include "buildings/ui/VltAddTexbFirstPage.h"

#include "ui_AddTexbFirstPage.h"

#include "buildings/HeightGuess.h"
#include "buildings/SourceSummary.h"
#include "buildings/ui/NoDataGuess.h"
#include "buildings/ui/RasterMessages.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "platform/Settings.h"
#include "text/Numbers.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"
#include "wizard/base/WheelGuard.h"
#include "wizard/project/ProjectReaders.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextDocumentFragment>

using namespace vlt;

namespace {

const QString LastUsedDirKey = QStringLiteral("LastUsedDir");
const QString Colored = QStringLiteral("Colored");
const QString Textured = QStringLiteral("Textured");

QString settingsKey(const char *name)
{
    return QStringLiteral("AddTexbFirstPage/") + QLatin1String(name);
}

/// Regular files and folders only: opening a pipe might never end.
bool isReadable(const QString &path)
{
    const QFileInfo file(path);
    return file.isDir() ? file.isReadable()
                        : file.isFile() && QFile(path).open(QIODevice::ReadOnly);
}

Error vectorError(const QString &path)
{
    return {QStringLiteral("MESS_ERR_OPEN_VECTORDS"),
            QStringLiteral("This file can't be open as a vector file"), path};
}

/// Title of the boxes on Next.
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
    setTitle(tr("Buildings", "MESS_PAGE_BUILDINGS"));
    setFocusProxy(m_ui->m_pwLeBuildings); // where the keyboard starts
    setDropHighlightWidgets({m_ui->m_pwLblBuildings, m_ui->m_pwLblDtm});
    describeWidgets();
    connectWidgets();
    m_ui->m_pwNoDataProgress->hide();
    wizard::guardAgainstStrayWheel(this);
    registerField(QStringLiteral("Buildings*"), m_ui->m_pwLeBuildings);
    registerField(QStringLiteral("Dtm*"), m_ui->m_pwLeDtm);
    registerField(QStringLiteral("Layer*"), m_ui->m_pwCbLayer);
    registerField(QStringLiteral("Height*"), m_ui->m_pwCbHeight);
    registerField(QStringLiteral("Nodata"), m_ui->m_pwLeNoData);
}

VltAddTexbFirstPage::~VltAddTexbFirstPage() = default;

/// What the form cannot say.
void VltAddTexbFirstPage::describeWidgets()
{
    m_ui->m_pwRbTextured->setIcon(QIcon(QStringLiteral(":/images/textured-buildings.png")));
    m_ui->m_pwRbColored->setIcon(QIcon(QStringLiteral(":/images/colored-buildings.png")));
    m_ui->m_pwRbTextured->setAccessibleDescription(m_ui->m_pwLblTextured->text());
    m_ui->m_pwRbColored->setAccessibleDescription(
        QTextDocumentFragment::fromHtml(m_ui->m_pwLblColored->text()).toPlainText());

    // else the whole page flashes grey while it is disabled for a moment
    m_ui->m_pwSaInput->viewport()->setAutoFillBackground(false);
    m_ui->m_pwInput->setAutoFillBackground(false);

    // one column of labels through both groups
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
    for (const QRadioButton *radio : {m_ui->m_pwRbTextured, m_ui->m_pwRbColored})
        connect(radio, &QRadioButton::clicked, this, &VltAddTexbFirstPage::typeChanged);

    connect(m_ui->m_pwLeBuildings, &QLineEdit::returnPressed, this, [this] {
        if (m_ui->m_pwLeBuildings->text().isEmpty() || isReadableBuildings())
            takeTypedBuildings();
    });
    connect(m_ui->m_pwLeDtm, &QLineEdit::returnPressed, this, [this] {
        if (m_ui->m_pwLeDtm->text().isEmpty() || isReadableDtm())
            takeTypedDtm();
    });
    // a path that is not finished is no reason for a message when the line is left
    connect(m_ui->m_pwLeBuildings, &QLineEdit::editingFinished, this, [this] {
        if (const QString path = m_ui->m_pwLeBuildings->text(); path.isEmpty() || isReadable(path))
            takeTypedBuildings();
    });
    connect(m_ui->m_pwLeDtm, &QLineEdit::editingFinished, this, [this] {
        if (const QString path = m_ui->m_pwLeDtm->text(); path.isEmpty() || isReadable(path))
            takeTypedDtm();
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
    if (!buildings) { // the same goes for the terrain
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
        setField(QStringLiteral("Buildings"), path);
        openVector(path, false);
    }
    if (terrain && !terrain.value().isEmpty()) {
        const QString path = existing(terrain.value());
        setField(QStringLiteral("Dtm"), path);
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
    for (const char *name : {"Buildings", "Layer", "Height", "Dtm", "Nodata"})
        settings->setValue(settingsKey(name), field(QLatin1String(name)));
    settings->setValue(settingsKey("Type"), m_ui->m_pwRbColored->isChecked() ? Colored : Textured);

    SharedParameters &shared = parameters();
    for (const char *name : {"Buildings", "Dtm", "Nodata"})
        shared.insert(QLatin1String(name), field(QLatin1String(name)).toString());
    const auto chosen = [this](const char *name, const QComboBox *combo) {
        return combo->itemData(field(QLatin1String(name)).toInt()).toString();
    };
    shared.insert(QStringLiteral("Layer"), chosen("Layer", m_ui->m_pwCbLayer));
    shared.insert(QStringLiteral("Height"), chosen("Height", m_ui->m_pwCbHeight));
    const geodata::Extent extent = m_extent.value_or(geodata::Extent{});
    shared.insert(QStringLiteral("CenterX"), extent.centerX());
    shared.insert(QStringLiteral("CenterY"), extent.centerY());
}

int VltAddTexbFirstPage::nextId() const
{
    return m_ui->m_pwRbColored->isChecked() ? m_coloredPageId : m_texturedPageId;
}

bool VltAddTexbFirstPage::isReadableBuildings()
{
    const QString path = m_ui->m_pwLeBuildings->text();
    if (isReadable(path))
        return true;
    messages::warning(this, vectorError(path), refusalTitle());
    return false;
}

bool VltAddTexbFirstPage::isReadableDtm()
{
    const QString path = m_ui->m_pwLeDtm->text();
    if (isReadable(path))
        return true;
    messages::warning(this,
                      {QStringLiteral("MESS_OUV_MNT_IMP"), QStringLiteral("Cannot open DTM"), path},
                      refusalTitle());
    return false;
}

/// Whether the no-data value is empty or a number, as readers of a document understand it; warns
/// the user where it is not.
bool VltAddTexbFirstPage::isNoDataNumber()
{
    QString text = m_ui->m_pwLeNoData->text().trimmed();
    bool isNumber = text.isEmpty();
    if (!isNumber)
        QLocale::c().toDouble(text.replace(QLatin1Char(','), QLatin1Char('.')), &isNumber);
    if (!isNumber)
        messages::warning(this,
                          {QStringLiteral("MESS_NODATA_NO_NUMBER"),
                           QStringLiteral("The no-data value is not a number."),
                           {}},
                          refusalTitle());
    return isNumber;
}

/// Whether it is known where the buildings are; else the user is told, unless he stopped it.
bool VltAddTexbFirstPage::isPlaced()
{
    if (!m_extent)
        readExtent(m_ui->m_pwCbLayer->currentIndex());
    if (!m_extent)
        return false;
    if (m_extent->isPlaced())
        return true;
    messages::warning(this,
                      {QStringLiteral("MESS_ERR_NO_EXTENT"),
                       QStringLiteral("No building of this layer has a place"),
                       m_ui->m_pwCbLayer->currentText()},
                      refusalTitle());
    return false;
}

bool VltAddTexbFirstPage::validatePage()
{
    if (m_isBusy || !isReadableBuildings() || !isReadableDtm())
        return false;
    takeTypedBuildings();
    takeTypedDtm();
    if (!isComplete() || !isNoDataNumber() || !isPlaced())
        return false;
    saveSettings();
    return true;
}

void VltAddTexbFirstPage::takeTypedBuildings()
{
    const QString path = m_ui->m_pwLeBuildings->text();
    if (path != m_openedBuildings)
        openVector(path.isEmpty() ? path : QFileInfo(path).absoluteFilePath(), false);
}

void VltAddTexbFirstPage::takeTypedDtm()
{
    const QString path = m_ui->m_pwLeDtm->text();
    if (path != m_openedDtm)
        openTerrain(path.isEmpty() ? path : QFileInfo(path).absoluteFilePath());
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
    const std::optional<TerrainResult> terrain = readTerrain(path);
    if (!terrain) // stopped by the user
        return;
    if (*terrain)
        showTerrain(path, *terrain);
    else if (geodata::isVirtualRaster(path)) // no reason to close the buildings
        buildings::warnOfRaster(this, buildings::RasterProblem::CannotOpen, path,
                                terrain->error().detail);
    else
        openVector(path, false);
}

void VltAddTexbFirstPage::clearVector()
{
    m_source.reset();
    m_extent.reset();
    m_openedBuildings.clear();
    m_ui->m_pwLeBuildings->clear();
    m_ui->m_pwCbLayer->clear();
    m_ui->m_pwCbHeight->clear();
    showSummaries();
}

void VltAddTexbFirstPage::openVector(const QString &path, bool silent)
{
    if (m_isBusy)
        return;
    const QScopedValueRollback busy(m_isBusy, true);
    using Opened = Result<std::shared_ptr<geodata::PolygonSource>>;
    // closing may take a moment as well where the features are kept in memory
    const auto previous = std::make_shared<std::shared_ptr<geodata::PolygonSource>>(m_source);
    clearVector();
    if (path.isEmpty())
        return;
    const auto opened = wizard::waitForValue<Opened>(
        this, tr("Reading the buildings...", "MESS_READING_BUILDINGS"), [path, previous] {
            previous->reset();
            return geodata::PolygonSource::open(path);
        });
    if (!opened)
        return;
    if (!*opened) {
        if (!silent)
            messages::critical(this, opened->error(), messages::errorTitle(),
                               messages::PathPlace::BelowText);
        return;
    }
    if (opened->value()->layers().isEmpty()) {
        messages::critical(this,
                           {QStringLiteral("MESS_ERR_NOPOLY_LAY"),
                            QStringLiteral("This datasource doesn't contain any polygon layer"),
                            {}});
        return;
    }
    m_source = opened->value();
    showVector(path);
}

void VltAddTexbFirstPage::showVector(const QString &path)
{
    {
        const QSignalBlocker quiet(m_ui->m_pwCbLayer); // the first entry would choose itself
        for (const geodata::PolygonLayer &layer : m_source->layers())
            m_ui->m_pwCbLayer->addItem(layer.name, layer.name);
        m_ui->m_pwCbLayer->setCurrentIndex(-1);
    }
    m_ui->m_pwCbLayer->setCurrentIndex(0);
    m_openedBuildings = path;
    m_ui->m_pwLeBuildings->setText(path);
}

void VltAddTexbFirstPage::heightChanged(int /*index*/) {}

void VltAddTexbFirstPage::typeChanged() {}

const geodata::PolygonLayer *VltAddTexbFirstPage::currentLayer() const
{
    const int index = m_ui->m_pwCbLayer->currentIndex();
    return m_source && index >= 0 && index < m_source->layers().size()
               ? &m_source->layers().at(index)
               : nullptr;
}

void VltAddTexbFirstPage::layerChanged(int index)
{
    if (index < 0) {
        m_ui->m_pwCbLayer->clear();
        return;
    }
    const geodata::PolygonLayer *layer = currentLayer();
    if (layer == nullptr)
        return;
    for (const geodata::VectorField &field : layer->fields) {
        if (const QString caption = buildings::heightCaption(field); !caption.isEmpty())
            m_ui->m_pwCbHeight->addItem(caption, field.name);
    }
    m_ui->m_pwCbHeight->setCurrentIndex(buildings::guessedHeightField(layer->fields));
    readExtent(index);
}

void VltAddTexbFirstPage::readExtent(int layer)
{
    const QScopedValueRollback busy(m_isBusy, true);
    m_extent.reset();
    const std::shared_ptr<geodata::PolygonSource> source = m_source;
    const auto extent = wizard::waitForValue<geodata::Extent>(
        this, tr("Looking where the buildings are...", "MESS_READING_EXTENT"),
        [source, layer] { return source->extent(layer); });
    if (m_source == source && m_ui->m_pwCbLayer->currentIndex() == layer)
        m_extent = extent;
    showSummaries();
}

std::optional<VltAddTexbFirstPage::TerrainResult>
VltAddTexbFirstPage::readTerrain(const QString &path)
{
    const QScopedValueRollback busy(m_isBusy, true);
    return wizard::waitForValue<TerrainResult>(this,
                                               tr("Reading the terrain...", "MESS_READING_DTM"),
                                               [path] { return geodata::readRasterSummary(path); });
}

void VltAddTexbFirstPage::openTerrain(const QString &path)
{
    if (m_isBusy)
        return;
    m_terrain.reset();
    m_openedDtm.clear();
    m_ui->m_pwLeDtm->clear();
    m_ui->m_pwLeNoData->clear();
    showSummaries();
    if (path.isEmpty())
        return;
    m_lastUsedDir = QFileInfo(path).absolutePath();
    if (const std::optional<TerrainResult> terrain = readTerrain(path))
        showTerrain(path, *terrain);
}

void VltAddTexbFirstPage::showTerrain(const QString &path, const TerrainResult &terrain)
{
    const QScopedValueRollback busy(m_isBusy, true);
    m_lastUsedDir = QFileInfo(path).absolutePath();
    const bool isUsable = terrain && terrain.value().bandCount > 0;
    m_terrain = isUsable ? std::optional(terrain.value()) : std::nullopt;
    m_openedDtm = terrain ? path : QString(); // also where it has no bands: the user may know why
    m_ui->m_pwLeDtm->setText(m_openedDtm);
    const std::optional<double> noData = isUsable ? terrain.value().noData : std::nullopt;
    m_ui->m_pwLeNoData->setText(noData ? text::f6(*noData) : QString());
    showSummaries();
    if (!terrain)
        m_ui->m_pwLblDtmInfo->setText(
            tr("%1: %2", "MESS_FILE_REASON")
                .arg(QFileInfo(path).fileName(), language::readerText(terrain.error().detail)));

    if (!terrain)
        buildings::warnOfRaster(this, buildings::RasterProblem::CannotOpen, path,
                                terrain.error().detail);
    else if (!isUsable)
        buildings::warnOfRaster(this, buildings::RasterProblem::NoBands, path);
    else if (terrain.value().holdsColors)
        buildings::warnOfRaster(this, buildings::RasterProblem::HoldsColors, path);
}

void VltAddTexbFirstPage::showSummaries()
{
    const geodata::PolygonLayer *layer = currentLayer();
    m_ui->m_pwLblBuildingsInfo->setText(layer ? buildings::layerSummary(*layer, m_extent)
                                              : QString());
    m_ui->m_pwLblDtmInfo->setText(m_terrain ? buildings::terrainSummary(*m_terrain, layer, m_extent)
                                            : QString());
}

void VltAddTexbFirstPage::guessNoData()
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    const QPointer<VltAddTexbFirstPage> self(this); // its window may be closed meanwhile
    const QString guess =
        buildings::guessNoData(this, m_ui->m_pwLeDtm->text(), m_ui->m_pwNoDataProgress);
    if (!self)
        return;
    m_isBusy = false;
    if (!guess.isEmpty())
        m_ui->m_pwLeNoData->setText(guess);
}
