#pragma once

#include "snapshot/SceneSource.h"

#include <QGroupBox>
#include <QTimer>

#include <memory>

namespace Ui {
class LayerPreview;
}

/// The 3D view beside the settings of a layer: a demonstration of them, or the layer just written,
/// and a button for each way to look at them.
class VltLayerPreview : public QGroupBox
{
    Q_OBJECT

public:
    /// The words for the button of the layer.
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

    /// Whether there is a view at all; without one no scene is needed.
    bool hasView() const;

    /// Takes another demonstration; the first one is shown from where the whole of it is seen.
    void setDemonstration(const vlt::snapshot::Scene &scene);

    /// Takes a layer file, to be loaded when the user wants to see it, or none for an empty path.
    ///
    /// @param project  file of the project that the layer belongs to; may be empty
    void setLayerFile(const QString &path, const QString &project);

    /// Shows the demonstration instead of the layer, if that is what is shown.
    void leaveLayer();

    /// Looks at the demonstration's point `heightM` above its origin.
    void lookAtDemonstration(double distanceM, double heightM);
    /// Looks at the middle of the demonstration, from `leastM` metres or as far as the whole needs.
    void lookAtDemonstration(double leastM);

Q_SIGNALS:
    /// The user wants to see the demonstration from afar, or from near.
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
    QTimer m_refreshTimer; ///< gathers quick changes into one load of the layer
};
