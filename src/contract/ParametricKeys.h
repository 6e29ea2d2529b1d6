#pragma once

/// The query of a parametric object, a name that scene readers open in place of a file:
/// "inline://parametric/query?object=pylon&key=value&....inlinepylonurl". The wizard writes it to
/// show how pylons and links would be drawn. Other keys in it are those of options for pylons and
/// links in QueryOptions.h.
namespace vlt::contract::parametric {

inline constexpr char Start[] = "inline://parametric/query?";
inline constexpr char Extension[] = "inlinepylonurl";

/// The kind of object.
inline constexpr char Object[] = "object";
inline constexpr char ObjectPylon[] = "pylon";
inline constexpr char ObjectLink[] = "link";

// Keys, each followed by the words of its value, which blanks separate. Units are metres and
// degrees; a beam width, antenna length or diameter of 0 means the default.
inline constexpr char Pylon[] = "pylon";
inline constexpr char PylonWords[] = "X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING";

inline constexpr char Transmitter[] = "transmitter"; ///< of the pylon before it
inline constexpr char TransmitterWords[] = "HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa";

inline constexpr char Dish[] = "dish"; ///< of the pylon before it
inline constexpr char DishWords[] = "HEIGHT AZIMUTH TILT DIAMETER rrggbbaa";

inline constexpr char Link[] = "link"; ///< the frequency is 0 if it is unknown
inline constexpr char LinkWords[] = "X1 Y1 Z1 X2 Y2 Z2 FREQUENCYMHZ [rrggbbaa]";

inline constexpr char Distances[] = "lod";
inline constexpr char DistancesWords[] = "SYMBOLIC REALISTIC";

} // namespace vlt::contract::parametric
