#include "buildings/ui/VltAddTexbColoredPage.h"

#include "ui_AddTexbColoredPage.h"

#include "buildings/ValuedBuildings.h"
#include "geodata/ValuesFile.h"
#include "platform/InputFiles.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"

#include <QFileDialog>

using namespace vlt;

VltAddTexbColoredPage::VltAddTexbColoredPage(QWidget *wizard, SharedParameters &parameters,
                                             const QString &installDir, const QString &language)
    : VltBuildingLayerPage(
          wizard, parameters, installDir, language,
          {QStringLiteral("buildings_colored"), QStringLiteral("AddTexbColoredPage")})
    , m_ui(std::make_unique<Ui::AddTexbColoredPage>())
{
    m_ui->setupUi(this);
    setTitle(tr("Colored buildings", "MESS_PAGE_COLORED"));
    setFocusProxy(m_ui->m_pwTabs); // Tab cannot reach widgets before it
    setDropHighlightWidgets(m_ui->m_pwColoring->dropLabels());
    m_ui->m_pwColoring->setInstallDir(installDir);
    m_ui->m_pwExtrusion->forgetDistance();
    addPanel(m_ui->m_pwColoring);
    addPanel(m_ui->m_pwExtrusion);
    connect(m_ui->m_pwColoring, &VltColoringPanel::readingImage, this, [this] {
        m_ui->m_pwGbPreview->showMessage(tr("Reading the image...", "MESS_READING_IMAGE"));
    });
    connect(m_ui->m_pwLegend, &VltLegendView::saveRequested, this,
            &VltAddTexbColoredPage::saveValues);
    setForm(m_ui->m_pwGbPreview, m_ui->m_ptHbDrag, m_ui->m_pwLblDragText);
}

VltAddTexbColoredPage::~VltAddTexbColoredPage() = default;

void VltAddTexbColoredPage::initializePage()
{
    VltBuildingLayerPage::initializePage();
    m_ui->m_pwColoring->offerFields(source().colorFields);
}

void VltAddTexbColoredPage::droppedFile(const QString &path)
{
    m_ui->m_pwColoring->openDropped(path);
}

void VltAddTexbColoredPage::defineImage()
{
    m_ui->m_pwColoring->defineImage();
}

void VltAddTexbColoredPage::guessNoData()
{
    m_ui->m_pwColoring->guessNoData();
}

void VltAddTexbColoredPage::addCmap()
{
    m_ui->m_pwColoring->addCmap();
}

void VltAddTexbColoredPage::currentDatasetChanged()
{
    m_ui->m_pwColoring->currentDatasetChanged();
}

QString VltAddTexbColoredPage::missingText() const
{
    return source().file.isEmpty() ? tr("There are no buildings yet.", "MESS_NEED_BUILDINGS")
                                   : m_ui->m_pwColoring->missingText();
}

Stoppable<buildings::BuildingLayerFiles> VltAddTexbColoredPage::writeFiles(const QString &layerPath,
                                                                           platform::Access access)
{
    buildings::BuildingLayerInput layer = layerInput(m_ui->m_pwExtrusion->settings(), {});
    const auto colors = m_ui->m_pwColoring->colors(layer);
    if (!colors)
        return std::nullopt;
    m_colorMapName = colors->legend.name;
    layer.legend = colors->legend;
    m_valued = {buildings::coloredDocument(layer, colors->coloring), colors->coloring, layer};
    if (!count(m_valued.document, layer))
        return std::nullopt;
    m_valued.layer = layer;
    return buildings::writeColoredLayer(layerPath, layer, colors->coloring, access);
}

void VltAddTexbColoredPage::layerWritten(const buildings::BuildingLayerFiles &files)
{
    m_ui->m_pwLegend->showLegend(m_colorMapName, files.legend);
    const buildings::BuildingLayerInput &layer = m_valued.layer;
    if (files.legend.isEmpty() || !layer.legend || layer.counted.counts.drawn == 0)
        return;
    m_ui->m_pwLegend->offerSaving();
    if (m_valued.coloring.field.isEmpty())
        m_ui->m_pwLegend->showSummary(
            buildings::summarize(layer.counted.values, *layer.legend,
                                 buildings::unitOf(layer.counted.unit, m_valued.coloring)));
}

void VltAddTexbColoredPage::saveValues()
{
    if (isOutdated() && !makeLayer())
        return;
    const QFileInfo footprints(source().file);
    const QString package = QStringLiteral("GeoPackage (*.gpkg)");
    QString filter = package;
    QString path = QFileDialog::getSaveFileName(
        this, tr("Save values...", "MESS_SAVE_VALUES"),
        footprints.absoluteDir().filePath(footprints.completeBaseName() +
                                          QStringLiteral("_values.gpkg")),
        package + QStringLiteral(";;CSV (*.csv)"), &filter);
    if (path.isEmpty())
        return;
    if (!geodata::ValuesFile::isName(path)) {
        path += filter == package ? QStringLiteral(".gpkg") : QStringLiteral(".csv");
        // The dialog asks about the name without the suffix.
        if (QFileInfo::exists(path) &&
            !messages::confirmed(
                this, tr("%1 already exists. Replace it?", "MESS_QUEST_REPLACE").arg(path)))
            return;
    }
    if (platform::isOneOf(path, {source().file, source().terrainFile, m_valued.coloring.rasterFile,
                                 m_valued.coloring.colorMap})) {
        messages::critical(this, platform::outputIsInput(path));
        return;
    }
    using Outcome = Stoppable<Done>;
    const std::function<Outcome(const Progress &)> work =
        [path, document = m_valued.document,
         legend = m_valued.layer.legend](const Progress &progress) {
            return buildings::saveValues(document, {path, {}}, legend, progress);
        };
    const auto outcome = wizard::waitForValue<Outcome>(
        this, tr("Writing the values of the buildings...", "MESS_WRITING_VALUES"), work);
    if (outcome && *outcome && !**outcome)
        messages::critical(this, (*outcome)->error());
}
