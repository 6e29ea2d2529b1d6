#pragma once

#include "links/LinkLayer.h"
#include "tables/ui/VltTablePage.h"

class VltLinkDetails;
class VltLinkProfile;
class VltLinkProperties;
class VltSiteProperties;

/// The page that makes a link layer from a table of microwave links.
class VltAddLinkPage : public VltTablePage
{
    Q_OBJECT

public:
    VltAddLinkPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                   const QString &language);

    void readLinkFileInfo(const QString &path, bool quiet) { readFileInfo(path, quiet); }

public Q_SLOTS:
    void openLinks() { openTable(); }

private:
    static vlt::tables::TablePageConfiguration linkConfiguration();
    vlt::links::LinkLayerInput layerInput() const;

    std::optional<vlt::Error> readTable(const QString &path) override;
    const vlt::tables::TableFileInfo *file() const override { return m_file ? &*m_file : nullptr; }
    bool needsSecondTable(const std::optional<vlt::Error> &refusal) const override;
    void showDetails() override;
    void checkRows() override;
    std::optional<vlt::Error> missingChoice() const override;
    vlt::Result<vlt::tables::TableLayer> composeLayer() const override;
    QString demonstrationUrl() const override;
    double preciseDistanceM() const override;

    VltLinkProperties *m_panelLinks;
    VltSiteProperties *m_panelPylons;
    VltLinkDetails *m_panelDetails;
    VltLinkProfile *m_panelProfile;
    std::optional<vlt::links::LinkFileInfo> m_file; ///< none if no table is open
};
