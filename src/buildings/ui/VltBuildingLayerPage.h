#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "wizard/base/BasePage.h"

#include <QTimer>

class DraggableIcon;
class QBoxLayout;
class QLabel;
class VltBuildingPreview;

/// A page on which buildings become a layer: settings of a kind, preview, icon of the finished
/// layer. The files are made on entering and soon after a change. Where auto refresh is off they
/// are made on Refresh, or when the user takes hold of the icon.
///
/// A page of a kind sets its form up in its constructor and calls setResult().
class VltBuildingLayerPage : public BasePage
{
    Q_OBJECT

public:
    /// @param layerName  of the temporary files: "buildings_colored"
    VltBuildingLayerPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                         const QString &language, const QString &layerName);

    void initializePage() override;
    void cleanupPage() override;

    /// Saves the settings and makes the layer where it is not the one of the settings.
    bool validatePage() override;
    int nextId() const override { return -1; }

public Q_SLOTS:
    /// A value changed: the layer is made again, soon, or on Refresh.
    void updatePreview();
    void resetView();
    void autoRefreshChanged(int state);
    void refreshRequested();

protected:
    /// Takes the widgets of the result side of the form and adds the icon to one of its rows.
    ///
    /// @param dragText  the text beside the icon
    void setResult(VltBuildingPreview *preview, QBoxLayout *dragRow, QLabel *dragText);

    const vlt::buildings::BuildingsSource &source() const { return m_source; }

    /// What both kinds of layers need of source and installation.
    vlt::buildings::BuildingLayerInput
    layerInput(const vlt::contract::BuildingFootprints &footprints,
               const std::optional<vlt::buildings::LegendInput> &legend) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Enter takes a typed value and goes no further: the wizard would press one of its buttons.
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// What the page is not ready without is missing: no layer is made, no box opened.
    virtual bool isReady() const = 0;

    /// What is missing then, for the user.
    virtual QString missingText() const { return {}; }

    /// @param layerPath  of the layer file, which the other files lie beside
    /// @return           nothing where there is none and the user knows why
    virtual std::optional<vlt::Result<vlt::buildings::BuildingLayerFiles>>
    writeFiles(const QString &layerPath, vlt::platform::Access access) = 0;

    /// Shows what belongs to the layer that was just written; no files where there is none any
    /// more.
    virtual void layerWritten(const vlt::buildings::BuildingLayerFiles & /*files*/) {}

    bool makeLayer();
    bool makeOnce();
    std::optional<vlt::Result<vlt::Done>> saveLayer(const QString &target);
    void leaveLayer(const QString &message);
    void setLayerFile(const QString &path);

    QString m_layerName;
    vlt::buildings::BuildingsSource m_source;
    VltBuildingPreview *m_preview = nullptr;
    DraggableIcon *m_dragIcon = nullptr;
    QLabel *m_dragText = nullptr;
    QTimer m_delay; ///< folds quick changes into one layer
    bool m_isStale = true;
    bool m_isMaking = false;
};
