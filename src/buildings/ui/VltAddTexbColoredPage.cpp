#include "buildings/ui/VltAddTexbColoredPage.h"

#include "ui_AddTexbColoredPage.h"

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
    setForm(m_ui->m_pwGbPreview, m_ui->m_ptHbDrag, m_ui->m_pwLblDragText);
}

VltAddTexbColoredPage::~VltAddTexbColoredPage() = default;

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
    if (!count(buildings::coloredDocument(layer, colors->coloring), layer))
        return std::nullopt;
    return buildings::writeColoredLayer(layerPath, layer, colors->coloring, access);
}

void VltAddTexbColoredPage::layerWritten(const buildings::BuildingLayerFiles &files)
{
    m_ui->m_pwLegend->showLegend(m_colorMapName, files.legend);
}
