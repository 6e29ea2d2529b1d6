#pragma once

#include "readingaids/AidStyle.h"
#include "readingaids/SceneReading.h"
#include "readingaids/ViewScale.h"

#include <QTimer>
#include <QWidget>

class AidPlate;
class QAbstractButton;
class QMenu;
class W_simpleOSGViewer;

/// Scale bar, north arrow, legend and the coordinates under the pointer over the edges of a 3D
/// view. They are widgets of their own: they change with the camera, and their changes draw no
/// scene.
///
/// The keys of the view: N turns north up, A shows or hides the aids. A click with the right button
/// opens a menu with all that the keys do. Whether the aids are shown is remembered, for all views.
class VltReadingAids : public QObject
{
    Q_OBJECT

public:
    explicit VltReadingAids(W_simpleOSGViewer &viewer);

    /// Sets what the aids state; they are hidden without a scene.
    void show(bool hasScene, const vlt::readingaids::SceneReading &reading);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handleKey(int key);
    void turnNorthUp();
    void setShown(bool isShown);
    void openMenu(const QPoint &at);
    void follow();
    void place();
    void placeLegend(bool isShown, int gap);
    void placeCoordinates(bool isShown, int gap);
    void readPointer();
    void showPlace(const QStringList &lines);
    vlt::readingaids::AidStyle style() const;
    vlt::readingaids::ViewCamera camera() const;
    double northDeg(const vlt::readingaids::ViewCamera &camera) const;

    W_simpleOSGViewer &m_viewer;
    vlt::readingaids::SceneReading m_reading;
    bool m_hasScene = false;
    QPoint m_pressedAt;
    AidPlate *m_scaleBar;
    AidPlate *m_legend;
    AidPlate *m_coordinates;
    QTimer m_pointing; ///< combines movements of the mouse
    QPointF m_pointer;
    QStringList m_placeLines; ///< empty: no place on the earth is under the pointer
    QAbstractButton *m_north;
    vlt::readingaids::ScaleLength m_length;
    double m_bearingDeg = 0;
};
