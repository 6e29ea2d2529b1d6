#pragma once

#include <QList>
#include <QStringList>

#include <osg/Array>
#include <osg/BoundingBox>
#include <osg/Node>

#include <optional>

namespace vlt::picking {

enum class Kind { Site, Link, Building };

/// The objects of a scene, as its reader states them: sites, links or buildings, by numbers from 0.
/// Metres, in the frame of the scene.
class SceneObjects
{
public:
    /// The objects of a scene; nothing if its reader states none.
    static std::optional<SceneObjects> of(const osg::Node &scene);

    Kind kind() const { return m_kind; }
    std::size_t count() const { return m_rows->size(); }

    /// Row of the table from 1, that of a site's first row; of a building, the position of its
    /// feature in the source, from 0.
    qint64 row(std::size_t object) const { return (*m_rows)[object]; }

    /// Name of a site or a link, or the text by which a building is coloured; may be empty.
    QString name(std::size_t object) const { return m_names[object]; }

    /// Foot of a site, middle of a building's roof, or an end of a link (0 or 1).
    osg::Vec3d place(std::size_t object, std::size_t end = 0) const;

    /// Height of a site's mast or of a building; half width of a link's Fresnel zone in
    /// its middle, 0 if none is drawn.
    double sizeM(std::size_t object) const { return (*m_sizes)[object]; }

    /// Value by which a building is coloured; nothing for none.
    std::optional<double> value(std::size_t object) const;
    osg::Vec4ub wallColor(std::size_t object) const;
    osg::Vec4ub roofColor(std::size_t object) const;

    /// The object of a row; nothing if there is none.
    std::optional<std::size_t> ofRow(qint64 row) const;

    /// The objects with a name, in ascending order. If no name is equal, upper and lower case are
    /// not distinguished.
    QList<std::size_t> named(const QString &name) const;

    /// What a picture of a site or a link shows: the mast from its foot on, or both ends and the
    /// zone.
    osg::BoundingBoxd extent(std::size_t object) const;

private:
    SceneObjects() = default;

    Kind m_kind = Kind::Site;
    osg::ref_ptr<const osg::Vec3Array> m_places;
    osg::ref_ptr<const osg::FloatArray> m_sizes;
    osg::ref_ptr<const osg::UIntArray> m_rows;
    osg::ref_ptr<const osg::FloatArray> m_values;      ///< may be null
    osg::ref_ptr<const osg::Vec4ubArray> m_wallColors; ///< may be null
    osg::ref_ptr<const osg::Vec4ubArray> m_roofColors; ///< may be null
    QStringList m_names;
};

} // namespace vlt::picking
