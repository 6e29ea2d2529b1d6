#pragma once

#include "contract/TableKind.h"
#include "sites/SiteRepresentation.h"
#include "wizard/base/VltParameterPanel.h"

#include <memory>

namespace Ui {
class SiteProperties;
}

/// The panel with the representation of pylons and sectors.
class VltSiteProperties : public VltParameterPanel
{
    Q_OBJECT

public:
    /// Lists the catalogues of the installation in `language`.
    VltSiteProperties(const QString &installDir, const QString &language,
                      QWidget *parent = nullptr);
    ~VltSiteProperties() override;

    void setStacked(bool stacked) override;

    /// The name by which the scene library loads one demonstration site with these values; empty if
    /// no pylon type or colour set is chosen.
    ///
    /// @param kind  sites; for links the result is empty, because their demonstration has other
    ///              parts too
    QString buildPreviewPylonUrl(vlt::contract::TableKind kind) const;

    /// The current values; an index is -1 if the catalogue is empty.
    vlt::sites::SiteRepresentation representation() const;
    const vlt::sites::SiteCatalogues &catalogues() const { return m_catalogues; }

private:
    void offerNumbers();
    void fillCombos();
    void connectWidgets();

    std::unique_ptr<Ui::SiteProperties> m_ui;
    vlt::sites::SiteCatalogues m_catalogues;
    QString m_installDir;
};
