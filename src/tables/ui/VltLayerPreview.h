#pragma once

#include "preview/CameraPose.h"
#include "preview/Surroundings.h"
#include "snapshot/SceneSource.h"

#include <QGroupBox>
#include <QTimer>

#include <memory>
#include <optional>

namespace Ui {
class LayerPreview;
}
class QPushButton;

/// The 3D view beside the settings of a layer. It shows the layer just written; before there is
/// one, and on request, a demonstration of the settings, which is marked as an example. A button
/// for each view states which one is shown, and each of the two scenes keeps its camera.
///
/// Layers are read beside the user interface; the former picture stays until then.
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

    /// Sets the layer file, which is shown unless the user chose the demonstration; an empty path
    /// means none.
    ///
    /// @param project  file of the layer's project; may be empty
    void setLayerFile(const QString &path, const QString &project);

    /// Prefers the layer to the demonstration, and looks at all of the next one: it has a new
    /// source.
    void expectLayer();

    /// Marks the site or link to which a row of the table belongs, with a card; 0: none.
    void selectRow(qint64 row);
    /// The same, and moves the camera there.
    void flyToRow(qint64 row);

    /// Shows the demonstration from the distance; the camera points `heightM` above its origin.
    void lookAtDemonstration(double distanceM, double heightM);
    /// Shows the middle of the demonstration, from `leastM` metres or from as far as needed to show
    /// all of it.
    void lookAtDemonstration(double leastM);

Q_SIGNALS:
    /// The user wants to see the demonstration from far or from near.
    void symbolicWanted();
    void preciseWanted();
    /// The user selected a site or link in the view: the row where it begins; 0: none.
    void rowPicked(qint64 row);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// A scene with all that is shown around it.
    struct Picture
    {
        vlt::snapshot::Scene scene; ///< null: none yet
        GroundMaker ground;
        std::optional<CameraPose> pose; ///< of the camera when it was shown last
    };

    void show(Picture &picture);
    void showDemonstration();
    void placeFirst();
    void leaveLayer();
    void wantLayer();
    void readLayer();
    void takeLayer(const vlt::Result<vlt::snapshot::Scene> &scene, const GroundMaker &ground);
    void showState();
    void connectPointing();
    void showSelection();
    void readCard(qint64 row);
    QString projectDirectory() const;

    std::unique_ptr<Ui::LayerPreview> m_ui;
    QPushButton *m_demonstrationButton; ///< the last of those two that was used
    QString m_loadingText;
    Picture m_demonstration;
    Picture m_layer;
    Picture *m_shown = nullptr;
    QString m_layerPlace; ///< centre of the last layer
    QString m_layerFile;
    QString m_project;
    QString m_problem;        ///< why the layer cannot be shown
    QTimer m_refreshTimer;    ///< combines quick changes into one read of the layer
    QTimer m_patience;        ///< a short read has no text
    qint64 m_selectedRow = 0; ///< of the table; 0: none
    bool m_isFlying = false;  ///< to that row, when its object is known
    bool m_wantsLayer = true; ///< otherwise the user chose the demonstration
    bool m_isPlaced = false;  ///< the demonstration was visible
    bool m_isReading = false;
    bool m_isOutdated = true; ///< the layer file has changed since its last read began
};
