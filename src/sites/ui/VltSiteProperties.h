#pragma once

#include "sites/SiteRepresentation.h"

#include <QWidget>

#include <memory>

namespace Ui {
class SiteProperties;
}

/// The panel with the look of pylons and sectors.
class VltSiteProperties : public QWidget
{
    Q_OBJECT

public:
    /// Lists the catalogues of the installation in `language`.
    VltSiteProperties(const QString &installDir, const QString &language,
                      QWidget *parent = nullptr);
    ~VltSiteProperties() override;

    /// Reads the values remembered under "<prefix>/..."; one that is missing, is no number or
    /// chooses no entry of its catalogue is that of a first run. Emits nothing.
    virtual void loadSettings(const QString &prefix);
    virtual void saveSettings(const QString &prefix);

    /// The name under which the scene library loads one demonstration site with these values; empty
    /// where no pylon type or colour set is chosen.
    ///
    /// @param kind  "site"
    QString buildPreviewPylonUrl(const QString &kind) const;

    /// The values as they stand; an index is -1 where the catalogue is empty.
    vlt::sites::SiteRepresentation representation() const;
    const vlt::sites::SiteCatalogues &catalogues() const { return m_catalogues; }

    /// Puts the two groups above each other instead of side by side, for large fonts.
    void setStacked(bool stacked);

Q_SIGNALS:
    /// A value has changed.
    void parameterChanged();

private:
    void fillCombos();
    void connectWidgets();

    std::unique_ptr<Ui::SiteProperties> m_ui;
    vlt::sites::SiteCatalogues m_catalogues;
    QString m_installDir;
};
