#pragma once

namespace vlt::contract {

// Fields of the layer of link ends. Every link has two rows in it, end A before end B.

/// Index of the field that names the site of the end, under the name that the exporting tool gives
/// it.
inline constexpr int LinkEndSiteField = 0;
inline constexpr char LinkSectorField[] = "Transmitter-1 Sector ID";
inline constexpr char LinkHeightField[] = "Transmitter-1 Height (m)"; ///< above ground
inline constexpr char LinkAzimuthField[] = "Transmitter-1 Azimuth (\u00b0)";
inline constexpr char LinkTiltField[] = "Transmitter-1 Tilt (\u00b0)";
/// Name of the link; "row N" where it has none.
inline constexpr char LinkNameField[] = "Link";
/// Number of the link's row in the file, from 1.
inline constexpr char LinkRowField[] = "Link row";
/// EndA or EndB.
inline constexpr char LinkEndField[] = "End";
inline constexpr char LinkFrequencyField[] = "Frequency (MHz)";
inline constexpr char LinkLengthField[] = "Link length (m)";

inline constexpr char EndA[] = "A";
inline constexpr char EndB[] = "B";

/// Layers of a link table: the links as lines, their ends as points.
inline constexpr int LinkLayerIndex = 0;
inline constexpr int LinkEndLayerIndex = 1;

} // namespace vlt::contract
