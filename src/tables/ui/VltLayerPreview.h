#pragma once

#include "snapshot/SceneSource.h"

#include <QGroupBox>
#include <QTimer>

#include <memory>

namespace Ui {
class LayerPreview;
}

/// The 3D view beside the settings of a layer: a demonstration of them, or the layer just written,
/// and a button for each view of them.
class VltLayerPreview : public QGroupBox
{
    Q_OBJECT

public:
    /// Texts and icon for the button of the layer.
    struct OwnLayer
    {
        QString objectName;
        QString name;
        QString toolTip;
        QString icon; ///< resource
        QString loading;
    };

    explicit VltLayerPreview(QWidget *parent = nullptr);
    ~VltLayerPreview() override;

    void setOwnLayer(const OwnLayer &words);

    /// Whether the preview has a 3D view; without one no scene is needed.
    bool hasView() const;

    /// Sets the demonstration; the camera shows all of the first one.
    void setDemonstration(const vlt::snapshot::Scene &scene);

    /// Sets the layer file, which is loaded when the user wants to see it; an empty path means
    /// none.
    ///
    /// @param project  file of the layer's project; may be empty
    void setLayerFile(const QString &path, const QString &project);

    /// Shows the demonstration if the layer is shown.
    void leaveLayer();

    /// Shows the demonstration from the distance; the camera points `heightM` above its origin.
    void lookAtDemonstration(double distanceM, double heightM);
    /// Shows the middle of the demonstration, from `leastM` metres or from as far as needed to show
    /// all of it.
    void lookAtDemonstration(double leastM);

Q_SIGNALS:
    /// The user wants to see the demonstration from far or from near.
    void symbolicWanted();
    void preciseWanted();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void chooseScene(bool ownLayer);
    bool showLayer();
    void refreshLayer();

    std::unique_ptr<Ui::LayerPreview> m_ui;
    QString m_loadingText;
    vlt::snapshot::Scene m_demonstration; ///< null until one could be loaded
    QString m_layerFile;
    QString m_project;
    QTimer m_refreshTimer; ///< combines quick changes into one load of the layer
};
