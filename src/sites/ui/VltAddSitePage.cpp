#include "sites/ui/VltAddSitePage.h"

#include "sites/ui/VltSiteDetails.h"
#include "sites/ui/VltSiteProperties.h"

VltAddSitePage::VltAddSitePage(QWidget *wizard, SharedParameters &parameters,
                               const QString &installDir, const QString &language)
    : VltTablePage(wizard, parameters, installDir, language, siteConfiguration())
    , m_panelPylons(new VltSiteProperties(installDir, language, this))
    , m_panelDetails(new VltSiteDetails(this))
{
    setParts(m_panelDetails, {m_panelPylons});
}

vlt::tables::TablePageConfiguration VltAddSitePage::siteConfiguration()
{
    vlt::tables::TablePageConfiguration configuration;
    configuration.objectNames = {QStringLiteral("AddSitePage"), QStringLiteral("m_pwGbSites"),
                                 QStringLiteral("m_pwLblSite"), QStringLiteral("m_pwLeSite"),
                                 QStringLiteral("m_pwPbSite")};
    configuration.settingsPrefix = QStringLiteral("AddSitePage");
    configuration.fileKey = QStringLiteral("SiteFile");
    configuration.kind = vlt::contract::TableKind::Sites;
    configuration.layerBaseName = QStringLiteral("sites");
    configuration.nearDistanceM = 50;
    configuration.nearHeightM = 13;
    configuration.title = tr("Site layer", "MESS_SITE_LAYER_TITLE");
    configuration.fileGroup = tr("Site file", "MESS_SITE_FILE");
    configuration.fileLabel = tr("Sites file to display", "MESS_SITE_FILE2");
    configuration.noFile =
        tr("No sites file defined.\nSelect the sites file to display.", "MESS_NO_SITE_DEFINED");
    configuration.selectFile = tr("Select the site file to use", "MESS_SELECT_SITE_FILE");
    configuration.files = tr("Site files", "MESS_SITE_FILES");
    configuration.reading = tr("Reading the site file...", "MESS_READING_SITES");
    configuration.dragText =
        tr("Drag this icon into\nVeltaro Builder\nto add the site layer\n", "MESS_DRAG_ICON");
    configuration.dragName = tr("Site layer to drag into the builder", "MESS_DRAG_NAME");
    configuration.ownLayer = {
        QStringLiteral("m_pwPbOwnSites"), tr("Sites of the layer", "MESS_OWN_SITES"),
        tr("Show the sites of the layer just written", "MESS_TIP_OWN_SITES"),
        QStringLiteral(":/images/own-sites.png"), tr("Loading the sites...", "MESS_LOADING_SITES")};
    return configuration;
}

std::optional<vlt::Error> VltAddSitePage::readTable(const QString &path)
{
    return readInto(m_file, path, vlt::sites::readSiteFileInfoAs);
}

bool VltAddSitePage::needsSecondTable(const std::optional<vlt::Error> &) const
{
    if (!m_file)
        return false;
    const vlt::sites::SiteColumnSet &columns = m_file->columns;
    return columns.sectorIds.isEmpty() && columns.heights.isEmpty() && columns.azimuths.isEmpty();
}

void VltAddSitePage::showDetails()
{
    m_panelDetails->showFile(*m_file);
}

vlt::sites::SiteLayerInput VltAddSitePage::layerInput() const
{
    vlt::sites::SiteLayerInput input;
    fillInput(input);
    input.catalogues = m_panelPylons->catalogues();
    input.file = m_file.value_or(vlt::sites::SiteFileInfo());
    input.representation = m_panelPylons->representation();
    return input;
}

void VltAddSitePage::checkRows()
{
    m_panelDetails->check(checkedConnection(vlt::sites::placingConnection(layerInput())),
                          systems());
}

std::optional<vlt::Error> VltAddSitePage::missingChoice() const
{
    return vlt::sites::missingChoice(m_panelPylons->representation(), m_panelPylons->catalogues(),
                                     installDir());
}

vlt::Result<vlt::tables::TableLayer> VltAddSitePage::composeLayer() const
{
    return vlt::sites::makeSiteLayer(layerInput());
}

QString VltAddSitePage::demonstrationUrl() const
{
    return m_panelPylons->buildPreviewPylonUrl(vlt::contract::TableKind::Sites);
}

double VltAddSitePage::preciseDistanceM() const
{
    return m_panelPylons->representation().realisticDistanceM;
}
