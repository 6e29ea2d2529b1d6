#pragma once

#include "sites/SiteFileInfo.h"
#include "sites/ui/VltTablePage.h"

class VltSiteDetails;

/// The page on which a table of sites becomes a site layer.
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
    static vlt::sites::TablePageKind siteKind();
    vlt::sites::SiteLayerInput layerInput() const;

    void readTable(const QString &path) override;
    const vlt::sites::TableFileInfo &file() const override { return m_file; }
    void showDetails() override;
    void checkRows() override;
    vlt::Result<vlt::sites::SiteLayer> makeLayer() const override;
    QString demonstrationUrl() const override;

    VltSiteDetails *m_panelDetails;
    vlt::sites::SiteFileInfo m_file;
};
