#pragma once

#include "snapshot/SceneSource.h"

#include <QGroupBox>
#include <QStringList>

#include <memory>

namespace Ui {
class BuildingPreview;
}

/// The 3D view of a layer of buildings just written, with auto refresh, refresh and reset of the
/// view. Below it are the number of buildings and the first notice of the reader; a button opens
/// the list of all if there are more. Layers are read on another thread, with a progress bar and a
/// button to cancel.
class VltBuildingPreview : public QGroupBox
{
    Q_OBJECT

public:
    explicit VltBuildingPreview(QWidget *parent = nullptr);
    ~VltBuildingPreview() override;

    bool isAutoRefresh() const;
    void setAutoRefresh(bool on);

    /// Reads a layer file and shows it; the camera stays at the user's position. An empty path
    /// empties the view.
    ///
    /// @param project  file of the layer's project; may be empty
    void showLayer(const QString &path, const QString &project);

    /// Shows a text in the line below the view until the next layer.
    void showMessage(const QString &text);

public Q_SLOTS:
    /// Points the camera at all buildings, near enough to see some of them.
    void resetView();

Q_SIGNALS:
    void autoRefreshChanged(int state);
    void refreshRequested();

private:
    void showScene(const vlt::snapshot::Scene &scene, const QStringList &notices);
    void showDrawn();
    void showCard(int building);

    std::unique_ptr<Ui::BuildingPreview> m_ui;
    vlt::snapshot::Scene m_scene;
    QString m_place;       ///< centre of the last scene
    QStringList m_notices; ///< about the last scene
};
