#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "wizard/base/VltResultPage.h"

#include <QTimer>

class VltBuildingPreview;

/// A page on which buildings become a layer. The files are made on entering and soon after a
/// change. Where auto refresh is off they are made on Refresh, or when the user takes hold of the
/// icon.
///
/// A page of a kind sets its form up in its constructor, adds its panels and calls setForm().
class VltBuildingLayerPage : public VltResultPage
{
    Q_OBJECT

public:
    VltBuildingLayerPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                         const QString &language, const Names &names);

    void initializePage() override;
    void cleanupPage() override;

    /// Saves the settings and makes the layer where it is not the one of the settings.
    bool validatePage() override;

    void saveSettings() override;
    void restoreSettings() override;

public Q_SLOTS:
    /// A value changed: the layer is made again, soon, or on Refresh.
    void updatePreview() override;
    void resetView();
    void autoRefreshChanged(int state);
    void refreshRequested();

protected:
    /// Takes the widgets of the result side of the form and adds the icon to one of its rows.
    ///
    /// @param dragText  the text beside the icon
    void setForm(VltBuildingPreview *preview, QBoxLayout *dragRow, QLabel *dragText);

    const vlt::buildings::BuildingsSource &source() const { return m_source; }

    /// What both kinds of layers need of source and installation.
    vlt::buildings::BuildingLayerInput
    layerInput(const vlt::contract::BuildingFootprints &footprints,
               const std::optional<vlt::buildings::LegendInput> &legend) const;

    /// Why the choices make no layer, for the user; empty where they make one.
    virtual QString missingText() const = 0;

private:
    /// @param layerPath  of the layer file, which the other files lie beside
    /// @return           nothing where there is none and the user knows why
    virtual vlt::Stoppable<vlt::buildings::BuildingLayerFiles>
    writeFiles(const QString &layerPath, vlt::platform::Access access) = 0;

    /// Shows what belongs to the layer that was just written; no files where there is none any
    /// more.
    virtual void layerWritten(const vlt::buildings::BuildingLayerFiles & /*files*/) {}

    void beginLayer() override;
    std::optional<QString> obstacle() const override;
    vlt::Stoppable<vlt::Done> writeLayer(const QString &path,
                                         vlt::platform::Access access) override;
    bool followsChanges() const override;
    void showLayer(const QString &path) override;
    void showNoLayer(const QString &why) override;
    QString autoRefreshKey() const;

    QString m_settingsGroup;
    vlt::buildings::BuildingsSource m_source;
    vlt::buildings::BuildingLayerFiles m_files; ///< those written last
    VltBuildingPreview *m_preview = nullptr;
    QTimer m_delay; ///< folds quick changes into one layer
};
