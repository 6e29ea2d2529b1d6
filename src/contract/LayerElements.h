#pragma once

/// Names in layer files (".lay"). The wizard and the command line fill in the templates of the
/// installation, which hold these names; the scene readers read the result.
namespace vlt::contract::layer {

inline constexpr char RootElement[] = "veltaroLayer";
inline constexpr char Kind[] = "kind"; ///< attribute of the root: one of the next three
inline constexpr char Sites[] = "sites";
inline constexpr char Links[] = "links";
inline constexpr char Buildings[] = "buildings";

inline constexpr char Title[] = "title";
inline constexpr char Source[] = "source";       ///< query, or "TEXB:" and a document's path
inline constexpr char SourceLayer[] = "layer";   ///< of sites: their layer of the source
inline constexpr char EndLayer[] = "endLayer";   ///< of links: the source's layer of their ends
inline constexpr char NameField[] = "siteField"; ///< of sites: the field that names them

} // namespace vlt::contract::layer
