#pragma once

#include <string>
#include <string_view>

namespace vlt::scene {

enum class LayerKind { Sites, Links, Buildings };

/// The content of a layer file, without the parts that scenes do not use: its information page and
/// the field with the names of links.
struct LayerFile
{
    LayerKind kind = LayerKind::Sites;
    std::string title;
    /// The query, with the path of the table and the appearance of pylons and links; for buildings
    /// "TEXB:" and the path of their document.
    std::string source;
    std::string layer;     ///< sites: their layer in the source; empty: the first
    std::string endLayer;  ///< links: the layer with their ends; empty: the second
    std::string siteField; ///< field with the names of sites; empty: the recognised one
};

/// Reads the text of a layer file. A value is a CDATA section, which may contain any text except
/// its own end followed by the closing tag, or a text, escaped or not.
///
/// @throws BadLayer  the text is not a layer file, its kind is unknown or it has no source
LayerFile parseLayerFile(std::string_view text);

/// The same for a local file.
///
/// @throws BadLayer  also if it cannot be read or is too large (LayerText.h)
LayerFile readLayerFile(const std::string &path);

} // namespace vlt::scene
