#pragma once

#include "preview/CameraPose.h"
#include "preview/Surroundings.h"
#include "readingaids/SceneReading.h"

#include <osg/BoundingBox>
#include <osg/Node>

#include <QWidget>

#include <optional>

class VltObjectPointing;
class VltReadingAids;
class QLabel;
class W_simpleOSGViewer;

/// The frame for the preview of scenes on a page: a 3D view, or a text if the system does not
/// support one. Pages use both in the same manner.
class VltPreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit VltPreviewPane(QWidget *parent = nullptr);

    /// Whether there is a 3D view.
    bool hasView() const { return m_viewer != nullptr; }

    /// Replaces the scene. For the first one, the camera then shows the whole scene.
    ///
    /// @param ground   shown under the scene, with a sky; empty: the scene alone
    /// @param reading  what the reading aids state about the scene
    void showScene(osg::Node *scene, GroundMaker ground = {},
                   const vlt::readingaids::SceneReading &reading = {});

    /// The selection of objects of the scene; null without a view.
    VltObjectPointing *pointing() const { return m_pointing; }

    /// Where the camera is; without a view, nowhere.
    CameraPose pose() const;
    void setPose(const CameraPose &pose);

    /// Sets a text over the upper left corner of the view; empty: none.
    void setCaption(const QString &text);

    /// Sets the text in the middle of a view without a scene: what will be shown.
    void setEmptyText(const QString &text);

    /// Looks at the point `heightM` above the origin from `distanceM` metres.
    void placeCamera(double distanceM, double heightM);

    /// Looks at the centre of the scene from the distance at which it is visible as a whole, but at
    /// least from `minDistanceM`.
    void lookAtMiddle(double minDistanceM);

    /// Sets the maximum distance of the camera for centerView().
    void setMaxDistanceM(double maxDistanceM);

    /// Sets the elevation of the camera above the horizon for centerView(), in degrees. Without it,
    /// the elevation depends on the shape of the scene.
    void setElevationDeg(double elevationDeg);

    /// Sets the part of the scene for centerView(), by its extent without heights; the default is
    /// the whole scene.
    void setCore(const std::optional<osg::BoundingBox> &core);

    /// Shows the whole scene, or its core.
    void centerView();

Q_SIGNALS:
    /// The camera has moved; at most a few times a second.
    void cameraMoved();

public:
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QLabel *makePlate(const QString &objectName);
    void placePlates();
    void reportMoves();
    void showHint();

    W_simpleOSGViewer *m_viewer = nullptr;
    VltReadingAids *m_aids = nullptr; ///< with a view
    VltObjectPointing *m_pointing = nullptr;
    QLabel *m_caption = nullptr;   ///< with a view
    QLabel *m_emptyText = nullptr; ///< with a view
    osg::Vec3d m_eye;              ///< at the last cameraMoved()
    bool m_hasScene = false;
};
