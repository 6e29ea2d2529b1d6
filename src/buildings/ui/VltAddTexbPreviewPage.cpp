#include "buildings/ui/VltAddTexbPreviewPage.h"

#include "buildings/TexturedInfoText.h"
#include "ui_AddTexbPreviewPage.h"

#include <QScrollArea>
#include <QStyle>

using vlt::buildings::FileEntry;

VltAddTexbPreviewPage::VltAddTexbPreviewPage(QWidget *wizard, SharedParameters &parameters,
                                             const QString &installDir, const QString &language)
    : VltBuildingLayerPage(
          wizard, parameters, installDir, language,
          {QStringLiteral("buildings_textured"), QStringLiteral("AddTexbPreviewPage")})
    , m_ui(std::make_unique<Ui::AddTexbPreviewPage>())
{
    m_ui->setupUi(this);
    setTitle(tr("Display of buildings", "MESS_PAGE_DISPLAY"));
    setFocusProxy(m_ui->m_pwTabs);
    m_ui->m_pwColoring->setInstallDir(installDir);
    m_ui->m_pwExtrusion->alignTo(m_ui->m_pwCache->columnWidth());
    setDropHighlightWidgets(m_ui->m_pwColoring->dropLabels());
    for (VltParameterPanel *panel : std::initializer_list<VltParameterPanel *>{
             m_ui->m_pwTexturing, m_ui->m_pwColors, m_ui->m_pwExtrusion, m_ui->m_pwOptions,
             m_ui->m_pwCache, m_ui->m_pwColoring})
        addPanel(panel);
    setForm(m_ui->m_pwGbPreview, m_ui->m_ptHbDrag, m_ui->m_pwLblDragText);
    connect(m_ui->m_pwColors, &VltBuildingColors::coloringWanted, this,
            [this] { m_ui->m_pwTabs->setCurrentWidget(m_ui->m_pwTabColoring); });
    m_ui->m_pwHelp->explain(m_ui->m_pwTabs);
    showColoring();
}

VltAddTexbPreviewPage::~VltAddTexbPreviewPage() = default;

void VltAddTexbPreviewPage::initializePage()
{
    m_images = vlt::buildings::publishedImages(parameters());
    m_images.removeIf([](const FileEntry &image) { return !image.used; });
    m_ui->m_pwImages->setImages(m_images);
    VltBuildingLayerPage::initializePage();
    fitWidth();
    showColoring();
    showInformation();
}

/// Gives the first tabs a width at which they scroll only vertically.
void VltAddTexbPreviewPage::fitWidth()
{
    for (QScrollArea *area : {m_ui->m_pwSaDisplay, m_ui->m_pwSaAdvanced}) {
        area->widget()->layout()->activate();
        area->setMinimumWidth(area->widget()->minimumSizeHint().width() +
                              style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    }
}

void VltAddTexbPreviewPage::updatePreview()
{
    showColoring();
    showInformation();
    VltBuildingLayerPage::updatePreview();
}

/// Shows the tab of the colour map if walls or roofs use it.
void VltAddTexbPreviewPage::showColoring()
{
    m_ui->m_pwTabs->setTabVisible(m_ui->m_pwTabs->indexOf(m_ui->m_pwTabColoring),
                                  m_ui->m_pwColors->usesColorMap());
}

void VltAddTexbPreviewPage::showInformation()
{
    m_ui->m_pwLblInfo->setText(
        m_images.isEmpty()
            ? tr("No image is ticked: the buildings are shown without images.",
                 "MESS_NO_IMAGE_TICKED")
            : vlt::buildings::texturedInfoText(m_ui->m_pwTexturing->mode(), m_images));
}

void VltAddTexbPreviewPage::droppedFile(const QString &path)
{
    if (!m_ui->m_pwColors->usesColorMap())
        return;
    m_ui->m_pwTabs->setCurrentWidget(m_ui->m_pwTabColoring);
    m_ui->m_pwColoring->openDropped(path);
}

QString VltAddTexbPreviewPage::missingText() const
{
    if (source().file.isEmpty())
        return tr("There are no buildings yet.", "MESS_NEED_BUILDINGS");
    return m_ui->m_pwColors->usesColorMap() ? m_ui->m_pwColoring->missingText() : QString();
}

vlt::buildings::TexturingParameters
VltAddTexbPreviewPage::texturing(const vlt::buildings::RasterColoring &coloring) const
{
    vlt::buildings::TexturingParameters texturing;
    texturing.cache = m_ui->m_pwCache->cache();
    texturing.texturedVisibilityM = m_ui->m_pwTexturing->visibilityM();
    texturing.mode = m_ui->m_pwTexturing->mode();
    texturing.wallColor = m_ui->m_pwColors->wallColor();
    texturing.roofColor = m_ui->m_pwColors->roofColor();
    texturing.coloring = coloring;
    if (!m_images.isEmpty()) {
        texturing.textures.emplace();
        m_ui->m_pwTexturing->fill(*texturing.textures);
        m_ui->m_pwOptions->fill(*texturing.textures);
        texturing.images = m_images;
    }
    return texturing;
}

vlt::Stoppable<vlt::buildings::BuildingLayerFiles>
VltAddTexbPreviewPage::writeFiles(const QString &layerPath, vlt::platform::Access access)
{
    vlt::buildings::RasterColoring coloring;
    vlt::buildings::BuildingLayerInput layer = layerInput(m_ui->m_pwExtrusion->settings(), {});
    if (m_ui->m_pwColors->usesColorMap()) {
        const auto colors = m_ui->m_pwColoring->colors(layer);
        if (!colors)
            return std::nullopt;
        coloring = colors->coloring;
        layer.legend = colors->legend;
    }
    m_colorMapName = layer.legend ? layer.legend->name : QString();
    const vlt::buildings::TexturingParameters parameters = texturing(coloring);
    if (!count(vlt::buildings::texturedDocument(layer, parameters), layer))
        return std::nullopt;
    return vlt::buildings::writeTexturedLayer(layerPath, layer, parameters, access);
}

void VltAddTexbPreviewPage::layerWritten(const vlt::buildings::BuildingLayerFiles &files)
{
    m_ui->m_pwLegend->showLegend(m_colorMapName, files.legend);
}
