#pragma once

#include "links/LinkLayer.h"
#include "sites/ui/VltTablePage.h"

class VltLinkDetails;
class VltLinkProperties;

/// The page on which a table of microwave links becomes a link layer.
class VltAddLinkPage : public VltTablePage
{
    Q_OBJECT

public:
    VltAddLinkPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                   const QString &language);

    void saveSettings() override;
    void restoreSettings() override;

    void readLinkFileInfo(const QString &path, bool quiet) { readFileInfo(path, quiet); }

public Q_SLOTS:
    void openLinks() { openTable(); }

private:
    static vlt::sites::TablePageKind linkKind();
    vlt::links::LinkLayerInput layerInput() const;

    void setStacked(bool stacked) override;
    void readTable(const QString &path) override;
    const vlt::sites::TableFileInfo &file() const override { return m_file; }
    void showDetails() override;
    void checkRows() override;
    vlt::Result<vlt::sites::SiteLayer> makeLayer() const override;
    QString demonstrationUrl() const override;

    VltLinkProperties *m_panelLinks;
    VltLinkDetails *m_panelDetails;
    vlt::links::LinkFileInfo m_file;
};
