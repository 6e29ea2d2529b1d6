#pragma once

namespace vlt::contract {

// Fields of the layer of link ends. Every link has two rows in this layer, end A before end B.

/// Index of the field with the name of the end's site. Its own name depends on the tool that
/// exported the table, hence an index.
inline constexpr int LinkEndSiteField = 0;
inline constexpr char LinkSectorField[] = "Transmitter-1 Sector ID";
inline constexpr char LinkHeightField[] = "Transmitter-1 Height (m)"; ///< above ground
inline constexpr char LinkAzimuthField[] = "Transmitter-1 Azimuth (\u00b0)";
inline constexpr char LinkTiltField[] = "Transmitter-1 Tilt (\u00b0)";
/// Name of the link; "row N" for a link without a name.
inline constexpr char LinkNameField[] = "Link";
/// Number of the link's row in the file, counted from 1.
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
