#include "links/ui/VltAddLinkPage.h"

#include "contract/TextPatterns.h"
#include "links/ui/VltLinkDetails.h"
#include "links/ui/VltLinkProfile.h"
#include "links/ui/VltLinkProperties.h"
#include "sites/ui/VltSiteProperties.h"

namespace {

constexpr double PerCent = 100;

} // namespace

VltAddLinkPage::VltAddLinkPage(QWidget *wizard, SharedParameters &parameters,
                               const QString &installDir, const QString &language)
    : VltTablePage(wizard, parameters, installDir, language, linkConfiguration())
    , m_panelLinks(new VltLinkProperties(this))
    , m_panelPylons(new VltSiteProperties(installDir, language, this))
    , m_panelDetails(new VltLinkDetails(this))
    , m_panelProfile(new VltLinkProfile(this))
{
    connect(m_panelDetails, &VltLinkDetails::linkChosen, m_panelProfile, &VltLinkProfile::showLink);
    addBelowPreview(m_panelProfile);
    setParts(m_panelDetails, {m_panelLinks, m_panelPylons});
}

vlt::tables::TablePageConfiguration VltAddLinkPage::linkConfiguration()
{
    vlt::tables::TablePageConfiguration configuration;
    configuration.objectNames = {QStringLiteral("AddLinkPage"), QStringLiteral("m_pwGbLinks"),
                                 QStringLiteral("m_pwLblLink"), QStringLiteral("m_pwLeLink"),
                                 QStringLiteral("m_pwPbLink")};
    configuration.settingsPrefix = QStringLiteral("AddLinkPage");
    configuration.fileKey = QStringLiteral("LinkFile");
    configuration.kind = vlt::contract::TableKind::Links;
    configuration.layerBaseName = QStringLiteral("links");
    configuration.looksAtMiddle = true;
    configuration.nearDistanceM = 80;
    configuration.nearHeightM = 18;
    configuration.title = tr("Link layer", "MESS_LINK_LAYER_TITLE");
    configuration.fileGroup = tr("Link file", "MESS_LINK_FILE");
    configuration.fileLabel = tr("Links file to display", "MESS_LINK_FILE2");
    configuration.noFile =
        tr("No links file defined.\nSelect the links file to display.", "MESS_NO_LINK_DEFINED");
    configuration.selectFile = tr("Select the link file to use", "MESS_SELECT_LINK_FILE");
    configuration.files = tr("Link files", "MESS_LINK_FILES");
    configuration.reading = tr("Reading the link file...", "MESS_READING_LINKS");
    configuration.dragText =
        tr("Drag this icon into\nVeltaro Builder\nto add the link layer\n", "MESS_DRAG_ICON_LINK");
    configuration.dragName = tr("Link layer to drag into the builder", "MESS_DRAG_NAME_LINK");
    configuration.ownLayer = {
        QStringLiteral("m_pwPbOwnLinks"), tr("Links of the layer", "MESS_OWN_LINKS"),
        tr("Show the links of the layer just written", "MESS_TIP_OWN_LINKS"),
        QStringLiteral(":/images/own-links.png"), tr("Loading the links...", "MESS_LOADING_LINKS")};
    return configuration;
}

std::optional<vlt::Error> VltAddLinkPage::readTable(const QString &path)
{
    return readInto(m_file, path, vlt::links::readLinkFileInfoAs);
}

bool VltAddLinkPage::needsSecondTable(const std::optional<vlt::Error> &refusal) const
{
    const auto text =
        refusal ? vlt::contract::recognised(refusal->detail.toStdString()) : std::nullopt;
    return text && std::string_view(text->text->key) == "MESS_TAB_ENDS_ONLY_NAMED";
}

void VltAddLinkPage::showDetails()
{
    m_panelDetails->showFile(*m_file);
}

vlt::links::LinkLayerInput VltAddLinkPage::layerInput() const
{
    vlt::links::LinkLayerInput input;
    fillInput(input);
    input.catalogues = m_panelPylons->catalogues();
    input.file = m_file.value_or(vlt::links::LinkFileInfo());
    input.pylons = m_panelPylons->representation();
    input.links = m_panelLinks->representation();
    return input;
}

void VltAddLinkPage::checkRows()
{
    const vlt::links::LinkLayerInput input = layerInput();
    vlt::geodata::LinkCheckInput check;
    check.terrainFile = project().terrainFile;
    check.rule.share = input.links.fresnelSharePercent / PerCent;
    check.rule.kFactor = input.links.kFactor;
    m_panelDetails->check(checkedConnection(vlt::links::placingConnection(input)), systems(),
                          check);
}

std::optional<vlt::Error> VltAddLinkPage::missingChoice() const
{
    return vlt::sites::missingChoice(m_panelPylons->representation(), m_panelPylons->catalogues(),
                                     installDir());
}

vlt::Result<vlt::tables::TableLayer> VltAddLinkPage::composeLayer() const
{
    return vlt::links::makeLinkLayer(layerInput());
}

QString VltAddLinkPage::demonstrationUrl() const
{
    const vlt::links::LinkLayerInput input = layerInput();
    return vlt::links::buildPreviewLinkUrl(input.pylons, input.links, input.catalogues,
                                           installDir());
}

double VltAddLinkPage::preciseDistanceM() const
{
    return m_panelPylons->representation().realisticDistanceM;
}
