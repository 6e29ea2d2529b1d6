#pragma once

#include "sites/SiteLayer.h"
#include "tables/ui/VltTablePage.h"

class VltSiteDetails;
class VltSiteProperties;

/// The page that makes a site layer from a table of sites.
class VltAddSitePage : public VltTablePage
{
    Q_OBJECT

public:
    VltAddSitePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                   const QString &language);

    void readSiteFileInfo(const QString &path, bool quiet) { readFileInfo(path, quiet); }

public Q_SLOTS:
    void openSites() { openTable(); }

private:
    static vlt::tables::TablePageConfiguration siteConfiguration();
    vlt::sites::SiteLayerInput layerInput() const;

    std::optional<vlt::Error> readTable(const QString &path) override;
    const vlt::tables::TableFileInfo *file() const override { return m_file ? &*m_file : nullptr; }
    bool needsSecondTable(const std::optional<vlt::Error> &refusal) const override;
    void showDetails() override;
    void checkRows() override;
    std::optional<vlt::Error> missingChoice() const override;
    vlt::Result<vlt::tables::TableLayer> composeLayer() const override;
    QString demonstrationUrl() const override;
    double preciseDistanceM() const override;

    VltSiteProperties *m_panelPylons;
    VltSiteDetails *m_panelDetails;
    std::optional<vlt::sites::SiteFileInfo> m_file; ///< none if no table is open
};
