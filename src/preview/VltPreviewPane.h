#pragma once

#include <osg/Node>

#include <QWidget>

class W_simpleOSGViewer;

/// The frame in which a page previews scenes: a 3D view, or a sentence where the system has none.
/// Pages work the same with both.
class VltPreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit VltPreviewPane(QWidget *parent = nullptr);

    /// Whether there is a 3D view.
    bool hasView() const { return m_viewer != nullptr; }

    /// Replaces the scene. The first one also places the camera on the whole of it.
    void showScene(osg::Node *scene);

    /// Looks at the point `heightM` above the origin from `distanceM` metres.
    void placeCamera(double distanceM, double heightM);

    /// Looks at the middle of the scene, from `leastM` metres or as far as the whole needs.
    void lookAtMiddle(double leastM);

    /// From how far centerView() looks at most.
    void setFarthestM(double farthestM);

    /// How high centerView() puts the eye, in degrees above the horizon, whatever the scene's
    /// shape.
    void setElevationDeg(double elevationDeg);

    /// The camera on the whole scene.
    void centerView();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    W_simpleOSGViewer *m_viewer = nullptr;
};
