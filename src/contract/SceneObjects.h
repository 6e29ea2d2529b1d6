#pragma once

/// The objects of a scene that is only drawn, so that one can be found at a point of the view: the
/// scene readers set them, the wizard and the command line read them.
namespace vlt::contract::objects {

// User objects of the root node, by their names: parallel arrays, an element for each object.

/// osg::Vec3Array in the scene's frame: feet of sites; both ends of each link, one after the other;
/// middles of the roofs of buildings.
inline constexpr char Places[] = "vlt.objects.places";
/// osg::FloatArray, metres: heights of masts; half widths of drawn Fresnel zones
/// in their middles, 0 for none; heights of buildings.
inline constexpr char Sizes[] = "vlt.objects.sizes";
/// osg::UIntArray: rows of the table from 1, that of a site's first row; positions of the features
/// of buildings in their source, from 0.
inline constexpr char Rows[] = "vlt.objects.rows";
/// osg::FloatArray, buildings only: values by which they are coloured; NaN for none.
inline constexpr char Values[] = "vlt.objects.values";
/// osg::Vec4ubArray, buildings only: colours of their walls.
inline constexpr char WallColors[] = "vlt.objects.walls";
/// osg::Vec4ubArray, buildings only: colours of their roofs.
inline constexpr char RoofColors[] = "vlt.objects.roofs";

// Values of the root node.

inline constexpr char Kind[] = "vlt.objects"; ///< text: one of the next three
inline constexpr char Site[] = "site";
inline constexpr char Link[] = "link";
inline constexpr char Building[] = "building";
/// Text, a line for each object: names of sites and links; texts by which buildings are coloured.
inline constexpr char Names[] = "vlt.objects.names";

/// User object of a drawable with several objects, osg::UIntArray: the number of the first triangle
/// of an object and the object, in ascending order.
inline constexpr char Ranges[] = "vlt.objects.ranges";

/// Value of a node with one object: its number, unsigned.
inline constexpr char Number[] = "vlt.objects.number";

} // namespace vlt::contract::objects
