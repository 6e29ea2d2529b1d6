#include "buildings/ui/VltColoringPanel.h"

#include "ui_ColoringPanel.h"

#include "buildings/ColorMapGuess.h"
#include "buildings/SourceSummary.h"
#include "buildings/ui/ColorMapChoice.h"
#include "buildings/ui/NoDataGuess.h"
#include "buildings/ui/RasterMessages.h"
#include "buildings/ui/RestoreIndex.h"
#include "buildings/ui/StretchControls.h"
#include "contract/NoDataText.h"
#include "platform/Settings.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"
#include "wizard/base/WheelGuard.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSettings>
#include <QSignalBlocker>
#include <QWizardPage>

using namespace vlt;
using vlt::buildings::Stretch;

namespace {

const QString LastUsedDirKey = QStringLiteral("LastUsedDir");

const QString StretchKey = QStringLiteral("StretchOver");
const QString FieldKey = QStringLiteral("ColorField");
const QString BandKey = QStringLiteral("Band");
constexpr int KindRole = Qt::UserRole + 1; ///< of the items of fields
constexpr int FirstBand = contract::RasterBand.firstRun;

/// Stores a value that few users change; for the others the settings do not have it.
void saveUnlessFirst(const QString &key, const QVariant &value, const QVariant &first)
{
    const auto settings = platform::wizardSettings();
    if (value == first)
        settings->remove(key);
    else
        settings->setValue(key, value);
}

bool isColorMapName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("txt") || suffix == QLatin1String("cmap");
}

} // namespace

VltColoringPanel::VltColoringPanel(QWidget *parent)
    : VltParameterPanel(parent)
    , m_ui(std::make_unique<Ui::ColoringPanel>())
{
    m_ui->setupUi(this);
    m_stretch = new StretchControls(
        this,
        {m_ui->m_pwCbStretch, m_ui->m_pwCbStretchOver, m_ui->m_pwStretchPercentile,
         m_ui->m_pwSbStretchLow, m_ui->m_pwSbStretchHigh, m_ui->m_pwStretchRange,
         m_ui->m_pwLeStretchLow, m_ui->m_pwLeStretchHigh, m_ui->m_pwStretchShared,
         m_ui->m_pwLeStretchOthers, m_ui->m_pwPbStretchOthers},
        m_lastUsedDir);
    setFocusProxy(m_ui->m_pwLeImage);
    m_ui->m_pwNoDataProgress->hide();
    offerFields({});
    m_colorMaps = std::make_unique<ColorMapChoice>(m_ui->m_pwCbCmap);
    m_ui->m_pwCbSubdatsets->view()->setTextElideMode(Qt::ElideLeft); // names start with a path
    wizard::guardAgainstStrayWheel(this);
    // Image, part and colour map are remembered separately because their lists depend on files.
    remember({{QStringLiteral("Mode"), m_ui->m_pwCbMode},
              {QStringLiteral("NoData"), m_ui->m_pwLeNoData},
              {QStringLiteral("Stretch"), m_ui->m_pwCbStretch},
              {QStringLiteral("ColorInterpMode"), m_ui->m_pwCBColorInterp}});
    connectWidgets();
}

VltColoringPanel::~VltColoringPanel() = default;

void VltColoringPanel::connectWidgets()
{
    connect(m_stretch, &StretchControls::changed, this, &VltColoringPanel::parameterChanged);
    connect(m_ui->m_pwCbColorBy, &QComboBox::currentIndexChanged, this, [this] {
        m_field = m_ui->m_pwCbColorBy->currentData().toString();
        showRows();
        Q_EMIT parameterChanged();
    });
    connect(m_ui->m_pwPbImage, &QPushButton::clicked, this, &VltColoringPanel::defineImage);
    connect(m_ui->m_pwPbNoData, &QPushButton::clicked, this, &VltColoringPanel::guessNoData);
    connect(m_ui->m_pwPbAddCmap, &QPushButton::clicked, this, &VltColoringPanel::addCmap);
    connect(m_ui->m_pwCbSubdatsets, &QComboBox::currentIndexChanged, this,
            &VltColoringPanel::currentDatasetChanged);
    connect(m_ui->m_pwLeImage, &QLineEdit::returnPressed, this,
            [this] { openImage(m_ui->m_pwLeImage->text(), false); });
    connect(m_ui->m_pwLeImage, &QLineEdit::editingFinished, this,
            &VltColoringPanel::takeTypedImage);
    connect(m_ui->m_pwLeImage, &QLineEdit::textEdited, this, &VltColoringPanel::parameterChanged);

    connect(m_ui->m_pwLeNoData, &QLineEdit::textChanged, this, &VltColoringPanel::parameterChanged);
    connect(m_ui->m_pwCbBand, &QComboBox::currentIndexChanged, this, &VltColoringPanel::showRows);
    for (const QComboBox *combo :
         {m_ui->m_pwCbBand, m_ui->m_pwCbCmap, m_ui->m_pwCBColorInterp, m_ui->m_pwCbMode})
        connect(combo, &QComboBox::currentIndexChanged, this, &VltColoringPanel::parameterChanged);
    const auto chosen = [this] { m_mayGuess = m_mayGuess && m_isGuessing; };
    connect(m_ui->m_pwCbCmap, &QComboBox::currentIndexChanged, this, chosen);
    connect(m_ui->m_pwCbMode, &QComboBox::currentIndexChanged, this, chosen);
    connect(m_stretch, &StretchControls::changed, this, chosen);
}

/// Opens the typed path when the line loses the focus, without a message for a path that may be
/// unfinished.
void VltColoringPanel::takeTypedImage()
{
    const QString path = m_ui->m_pwLeImage->text();
    if (path != m_openedImage && (path.isEmpty() || QFileInfo::exists(path)))
        openImage(path, false);
}

QWidget *VltColoringPanel::page()
{
    for (QWidget *widget = this; widget; widget = widget->parentWidget()) {
        if (qobject_cast<QWizardPage *>(widget))
            return widget;
    }
    return this;
}

void VltColoringPanel::setInstallDir(const QString &installDir)
{
    const QSignalBlocker quiet(this);
    m_colorMaps->listInstalled(installDir);
}

QString VltColoringPanel::subdataset() const
{
    return m_ui->m_pwCbSubdatsets->currentData().toString();
}

void VltColoringPanel::offerFields(const QList<geodata::VectorField> &fields)
{
    const QSignalBlocker quiet(this);
    QComboBox *choice = m_ui->m_pwCbColorBy;
    {
        const QSignalBlocker keepField(choice);
        choice->clear();
        choice->addItem(tr("raster", "MESS_COLOR_BY_RASTER"), QString());
        for (const geodata::VectorField &field : fields) {
            choice->addItem(buildings::fieldCaption(field), field.name);
            choice->setItemData(choice->count() - 1, static_cast<int>(field.kind), KindRole);
        }
        choice->setCurrentIndex(qMax(0, choice->findData(m_field)));
        m_field = choice->currentData().toString();
    }
    m_ui->m_pwLblColorBy->setVisible(!fields.isEmpty());
    choice->setVisible(!fields.isEmpty());
    showRows();
}

bool VltColoringPanel::isOfField() const
{
    return m_ui->m_pwCbColorBy->currentIndex() > 0;
}

bool VltColoringPanel::isOfTexts() const
{
    return isOfField() && m_ui->m_pwCbColorBy->currentData(KindRole).toInt() ==
                              static_cast<int>(geodata::FieldKind::String);
}

/// Shows the rows that the source of the colours has.
void VltColoringPanel::showRows()
{
    const bool isRaster = !isOfField();
    const auto show = [](const QWidgetList &row, bool isShown) {
        for (QWidget *widget : row)
            widget->setVisible(isShown);
    };
    const bool hasBands = isRaster && m_ui->m_pwCbBand->count() > 1;
    show({m_ui->m_pwLblImage, m_ui->m_pwLeImage, m_ui->m_pwPbImage, m_ui->m_pwLblNoData,
          m_ui->m_pwLeNoData, m_ui->m_pwPbNoData, m_ui->m_pwLblMode, m_ui->m_pwCbMode},
         isRaster);
    show({m_ui->m_pwSubdatasetsFrame}, isRaster && m_ui->m_pwCbSubdatsets->count() > 0);
    show({m_ui->m_pwLblBand, m_ui->m_pwCbBand}, hasBands);
    show({m_ui->m_pwLblBandHint}, hasBands && band() != FirstBand);
    show({m_ui->m_pwLblCmap, m_ui->m_pwCbCmap, m_ui->m_pwPbAddCmap, m_ui->m_pwCbStretch,
          m_ui->m_pwCbStretchOver, m_ui->m_pwLblColorInterp, m_ui->m_pwCBColorInterp},
         !isOfTexts());
    using enum StretchControls::Source;
    m_stretch->show(isRaster ? Raster : isOfTexts() ? TextField : NumberField);
}

int VltColoringPanel::band() const
{
    return qMax(0, m_ui->m_pwCbBand->currentIndex()) + 1;
}

QString VltColoringPanel::imagePath() const
{
    return m_openedImage;
}

std::optional<buildings::RasterColoring> VltColoringPanel::coloring() const
{
    if (!missingText().isEmpty())
        return std::nullopt;
    buildings::RasterColoring coloring;
    coloring.field = m_ui->m_pwCbColorBy->currentData().toString();
    coloring.isText = isOfTexts();
    if (coloring.isText)
        return coloring;
    if (!isOfField()) {
        coloring.rasterFile = subdataset().isEmpty() ? m_openedImage : subdataset();
        coloring.reduction = static_cast<buildings::Reduction>(m_ui->m_pwCbMode->currentIndex());
        coloring.noData = m_ui->m_pwLeNoData->text();
        coloring.band = band();
    }
    coloring.colorMap = m_colorMaps->path();
    coloring.stretched = m_ui->m_pwCbStretch->isChecked();
    coloring.stretch = m_stretch->stretch().value_or(buildings::Stretch());
    coloring.interpolated = m_ui->m_pwCBColorInterp->currentIndex() == 1;
    return coloring;
}

/// Why the raster cannot color the buildings; empty if it can.
QString VltColoringPanel::missingOfRaster() const
{
    const QString typed = m_ui->m_pwLeImage->text();
    if (!typed.isEmpty() && typed != m_openedImage)
        return tr("Press Enter to open the image of this path.", "MESS_IMAGE_NOT_OPENED");
    if (typed.isEmpty())
        return tr("Choose the image that colors the buildings.", "MESS_NEED_COLOR_IMAGE");
    if (!m_isUsable)
        return tr("Choose an image of values, not of colors.", "MESS_NEED_VALUES");
    if (!contract::isNoDataText(m_ui->m_pwLeNoData->text().toStdString()))
        return tr("The no-data value is not a number.", "MESS_NODATA_NO_NUMBER");
    return {};
}

QString VltColoringPanel::missingText() const
{
    if (isOfTexts())
        return {};
    if (QString missing = isOfField() ? QString() : missingOfRaster(); !missing.isEmpty())
        return missing;
    if (m_ui->m_pwCbStretch->isChecked() && !m_stretch->stretch())
        return m_ui->m_pwStretchShared->isHidden()
                   ? tr("The range of the colors needs two numbers, the lower one first.",
                        "MESS_STRETCH_NO_RANGE")
                   : tr("Choose the other images.", "MESS_STRETCH_NO_OTHERS");
    if (m_ui->m_pwCbCmap->currentIndex() < 0)
        return tr("Add a colormap.", "MESS_NEED_CMAP");
    if (!QFileInfo::exists(m_colorMaps->path()))
        return tr("The file of the colormap no longer exists: choose another colormap.",
                  "MESS_CMAP_GONE");
    return {};
}

std::optional<buildings::ReadColors>
VltColoringPanel::colors(const buildings::BuildingLayerInput &layer)
{
    const std::optional<buildings::RasterColoring> chosen = coloring();
    return chosen ? buildings::readColors(this, *chosen, layer) : std::nullopt;
}

void VltColoringPanel::showSubdatasets(const QList<geodata::Subdataset> &subdatasets)
{
    const QSignalBlocker quiet(m_ui->m_pwCbSubdatsets);
    m_ui->m_pwCbSubdatsets->clear();
    for (const geodata::Subdataset &one : subdatasets)
        m_ui->m_pwCbSubdatsets->addItem(QStringLiteral("%1 (%2)").arg(one.name, one.description),
                                        one.name);
    showRows();
}

void VltColoringPanel::showBands(const QStringList &bands)
{
    const QSignalBlocker quiet(m_ui->m_pwCbBand);
    m_ui->m_pwCbBand->clear();
    for (int i = 0; i < bands.size(); ++i)
        m_ui->m_pwCbBand->addItem(buildings::bandText(i + 1, bands));
    showRows();
}

std::optional<VltColoringPanel::Summary> VltColoringPanel::readSummary(const QString &path,
                                                                       const QString &part)
{
    const QScopedValueRollback busy(m_isBusy, true);
    Q_EMIT readingImage();
    return wizard::waitForValue<Summary>(
        this, tr("Reading the image...", "MESS_READING_IMAGE"),
        [path, part] { return geodata::readRasterSummary(path, part); });
}

void VltColoringPanel::openImage(const QString &path, bool quiet)
{
    if (m_isBusy)
        return;
    m_openedImage.clear();
    m_isUsable = false;
    m_ui->m_pwLeImage->clear();
    showSubdatasets({});
    showBands({});
    if (!path.isEmpty()) {
        const QString absolute = QFileInfo(path).absoluteFilePath();
        const std::optional<Summary> summary = readSummary(absolute, {});
        if (summary && summary->ok()) {
            m_openedImage = absolute;
            m_lastUsedDir = QFileInfo(absolute).absolutePath();
            m_ui->m_pwLeImage->setText(absolute);
            showSubdatasets(summary->value().subdatasets);
        }
        if (m_ui->m_pwCbSubdatsets->count() > 0)
            checkSubdataset(quiet);
        else
            check(summary, absolute, quiet);
    }
    Q_EMIT parameterChanged();
}

/// Sets whether an image is usable and warns of an unusable one. A plain unusable image is closed,
/// because the file has no other image to choose.
void VltColoringPanel::check(const std::optional<Summary> &summary, const QString &name, bool quiet)
{
    const bool isOpen = summary && summary->ok();
    m_isUsable = isOpen && buildings::isUsable(summary->value());
    showBands(m_isUsable ? summary->value().bands : QStringList());
    if (m_isUsable && !quiet)
        guessColors(summary->value().bands);
    if (!m_isUsable && m_ui->m_pwCbSubdatsets->count() == 0) {
        m_openedImage.clear();
        m_ui->m_pwLeImage->clear();
    }
    if (m_isUsable || quiet || !summary) // without a summary: the user stopped the read
        return;
    const QScopedValueRollback busy(m_isBusy, true);
    if (!isOpen)
        buildings::warnOfRaster(this, buildings::RasterProblem::CannotOpen, name,
                                summary->error().detail);
    else if (summary->value().bandCount == 0)
        buildings::warnOfRaster(this, buildings::RasterProblem::NoBands, name);
    else
        buildings::warnOfRaster(this, buildings::RasterProblem::NotOneBand, name);
}

/// Chooses colors for values of a known kind, until the user has chosen some: a shipped color map
/// with its own values, and the average under each building.
void VltColoringPanel::guessColors(const QStringList &bands)
{
    constexpr int AverageMode = 2;
    const QString name = buildings::guessedColorMap(m_openedImage, bands);
    const int map = name.isEmpty() ? -1 : m_ui->m_pwCbCmap->findText(name);
    if (!m_mayGuess || map < 0)
        return;
    const QScopedValueRollback guessing(m_isGuessing, true);
    m_ui->m_pwCbCmap->setCurrentIndex(map);
    m_ui->m_pwCbMode->setCurrentIndex(AverageMode);
    m_ui->m_pwCbStretch->setChecked(false);
}

void VltColoringPanel::checkSubdataset(bool quiet)
{
    check(readSummary(m_openedImage, subdataset()), subdataset(), quiet);
}

void VltColoringPanel::currentDatasetChanged()
{
    if (m_isBusy || subdataset().isEmpty())
        return;
    checkSubdataset(false);
    Q_EMIT parameterChanged();
}

void VltColoringPanel::defineImage()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Select the image to use", "MESS_SELECT_IMAGE_FILE"), m_lastUsedDir,
        QStringLiteral("%1 (*.*)").arg(tr("Raster Files", "MESS_RASTER_FILES")));
    if (!path.isEmpty())
        openImage(path, false);
}

void VltColoringPanel::guessNoData()
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    const QPointer<VltColoringPanel> self(this); // its window may be closed during the guess
    const QString guess = buildings::guessNoData(page(), m_openedImage, m_ui->m_pwNoDataProgress,
                                                 subdataset(), band());
    if (!self)
        return;
    m_isBusy = false;
    if (!guess.isEmpty())
        m_ui->m_pwLeNoData->setText(guess);
}

void VltColoringPanel::addCmap()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Select the colormap to use", "MESS_SELECT_CMAP_FILE"), m_lastUsedDir,
        QStringLiteral("%1 (*.txt *.cmap)").arg(tr("Colormap files", "MESS_CMAP_FILES")));
    if (!path.isEmpty())
        openColorMap(path);
}

void VltColoringPanel::openColorMap(const QString &path)
{
    m_lastUsedDir = QFileInfo(path).absolutePath();
    m_colorMaps->open(path, this);
}

void VltColoringPanel::openDropped(const QString &path)
{
    if (isColorMapName(path)) {
        openColorMap(path);
        return;
    }
    openImage(path, false);
    if (!m_openedImage.isEmpty())
        m_ui->m_pwCbColorBy->setCurrentIndex(0);
}

QList<QWidget *> VltColoringPanel::dropLabels() const
{
    return {m_ui->m_pwLblImage, m_ui->m_pwLblCmap};
}

void VltColoringPanel::loadSettings(const QString &prefix)
{
    const QSignalBlocker quiet(this);
    const auto settings = platform::wizardSettings();
    const auto value = [&settings, &prefix](const QString &key, const QVariant &absent) {
        return settings->value(prefix + QLatin1Char('/') + key, absent);
    };
    m_lastUsedDir = settings->value(LastUsedDirKey).toString();
    openImage(value(QStringLiteral("Image"), QString()).toString(), true);
    {
        const QSignalBlocker once(m_ui->m_pwCbSubdatsets);
        buildings::restoreIndex(m_ui->m_pwCbSubdatsets, value(QStringLiteral("IdxSubdataset"), 0));
    }
    if (m_ui->m_pwCbSubdatsets->currentIndex() > 0)
        checkSubdataset(true);
    buildings::restoreIndex(m_ui->m_pwCbBand, value(BandKey, FirstBand).toInt() - FirstBand);
    VltParameterPanel::loadSettings(prefix);
    m_stretch->setStretch(
        buildings::parseStretch(value(StretchKey, {}).toStringList()).value_or(Stretch()));

    m_field = value(FieldKey, {}).toString();

    m_colorMaps->loadSettings(prefix);
    m_mayGuess = !settings->contains(prefix + QStringLiteral("/CurrentColormap"));
}

void VltColoringPanel::saveSettings(const QString &prefix)
{
    const auto settings = platform::wizardSettings();
    const auto save = [&settings, &prefix](const QString &key, const QVariant &value) {
        settings->setValue(prefix + QLatin1Char('/') + key, value);
    };
    if (!m_lastUsedDir.isEmpty())
        settings->setValue(LastUsedDirKey, m_lastUsedDir);
    VltParameterPanel::saveSettings(prefix);
    save(QStringLiteral("Image"), m_openedImage);
    save(QStringLiteral("IdxSubdataset"), qMax(0, m_ui->m_pwCbSubdatsets->currentIndex()));
    saveUnlessFirst(prefix + QLatin1Char('/') + StretchKey,
                    buildings::stretchTexts(m_stretch->stretch().value_or(Stretch())),
                    buildings::stretchTexts({}));
    saveUnlessFirst(prefix + QLatin1Char('/') + BandKey, band(), FirstBand);
    saveUnlessFirst(prefix + QLatin1Char('/') + FieldKey, m_field, QString());
    m_colorMaps->saveSettings(prefix);
}
