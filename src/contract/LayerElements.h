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
inline constexpr char Source[] = "source";       ///< a query, or "TEXB:" and the path of a document
inline constexpr char SourceLayer[] = "layer";   ///< sites only: their layer in the source
inline constexpr char EndLayer[] = "endLayer";   ///< links only: the layer with their ends
inline constexpr char NameField[] = "siteField"; ///< sites only: the field with their names

} // namespace vlt::contract::layer
