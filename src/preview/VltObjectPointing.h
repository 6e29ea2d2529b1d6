#pragma once

#include "picking/SceneObjects.h"

#include <QObject>
#include <QPointF>

#include <osg/Group>
#include <osg/Matrixd>
#include <osgUtil/LineSegmentIntersector>

#include <optional>

class QVariantAnimation;
class VltObjectCard;
class W_simpleOSGViewer;

/// Selection of the objects of a view's scene: a click, or Enter for the middle of the view, picks
/// one, which gets a mark and may get a card. Escape, and a click beside all objects, end the
/// selection.
class VltObjectPointing : public QObject
{
    Q_OBJECT

public:
    explicit VltObjectPointing(W_simpleOSGViewer &viewer);

    /// Takes the objects of the view's scene; none is selected. Null: no scene.
    void setScene(osg::Node *scene);

    /// Of the scene; nothing if its reader states none.
    const std::optional<vlt::picking::SceneObjects> &objects() const { return m_objects; }

    std::optional<std::size_t> selected() const { return m_selected; }

    /// Marks an object and closes the card of another one; nothing: ends the selection.
    void select(std::optional<std::size_t> object);

    /// Shows a card about the selected object, if there is one.
    void showCard(const QString &html);

    /// Moves the camera to an object, in less than half a second; at once if the desktop has no
    /// animations.
    void flyTo(std::size_t object);

Q_SIGNALS:
    /// The user selected another object; -1: none.
    void picked(int object);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Intersections = osgUtil::LineSegmentIntersector::Intersections;

    void pickAt(const QPointF &position, const Intersections &met);
    void pick(std::optional<std::size_t> object);
    void removeMark();
    osg::Matrixd toWindow() const;

    W_simpleOSGViewer &m_viewer;
    VltObjectCard *m_card;
    QVariantAnimation *m_flight;
    osg::ref_ptr<osg::Node> m_scene;
    std::optional<vlt::picking::SceneObjects> m_objects;
    std::optional<std::size_t> m_selected;
    osg::ref_ptr<osg::Group> m_mark; ///< null: none
};
