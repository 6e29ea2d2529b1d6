#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "wizard/base/VltResultPage.h"

#include <QTimer>

class VltBuildingPreview;

/// A page that makes a layer from buildings. The files are written when the page is shown and soon
/// after a change. If auto refresh is off, they are written on Refresh or when the user drags the
/// icon.
///
/// The constructor of a derived page sets up its form, adds its panels and calls setForm().
class VltBuildingLayerPage : public VltResultPage
{
    Q_OBJECT

public:
    VltBuildingLayerPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                         const QString &language, const Names &names);

    void initializePage() override;
    void cleanupPage() override;

    /// Saves the settings and makes the layer if it is not up to date.
    bool validatePage() override;

    void saveSettings() override;
    void restoreSettings() override;

public Q_SLOTS:
    /// Makes the layer again after a change: soon, or on Refresh.
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

    /// The inputs that both kinds of layers take from source and installation.
    vlt::buildings::BuildingLayerInput
    layerInput(const vlt::contract::BuildingFootprints &footprints,
               const std::optional<vlt::buildings::LegendInput> &legend) const;

    /// Counts what the document of a layer would draw, unless this is known; the user sees a
    /// progress bar and can cancel. False if nothing would be drawn or the user cancelled. A
    /// document that cannot be read has no counts: the preview shows the reason.
    bool count(const vlt::contract::BuildingDocument &document,
               vlt::buildings::BuildingLayerInput &input);

    /// Why no layer can be made from the choices, as text for the user; empty if one can.
    virtual QString missingText() const = 0;

private:
    /// @param layerPath  of the layer file; the other files are in the same folder
    /// @return           none if no layer was made and the user knows the reason
    virtual vlt::Stoppable<vlt::buildings::BuildingLayerFiles>
    writeFiles(const QString &layerPath, vlt::platform::Access access) = 0;

    /// Shows the files of the layer that was just written; they are empty if there is no layer any
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

    /// The counts of the last document.
    struct Count
    {
        vlt::contract::BuildingDocument parts; ///< countedParts()
        vlt::buildings::CountedBuildings counted;
    };

    QString m_settingsGroup;
    vlt::buildings::BuildingsSource m_source;
    vlt::buildings::BuildingLayerFiles m_files; ///< of the last layer
    std::optional<Count> m_count;               ///< none after the files may have changed
    QString m_refusal;                          ///< why the last count led to no layer; else empty
    QString m_iconToolTip;                      ///< of the icon of a layer
    VltBuildingPreview *m_preview = nullptr;
    QTimer m_delay; ///< combines quick changes into one layer
};
