#pragma once

#include <string>
#include <string_view>

namespace vlt::scene {

enum class LayerKind { Sites, Links, Buildings };

/// What a layer file says. Its page of information, and the field that names a link there, are of
/// no use to a scene.
struct LayerFile
{
    LayerKind kind = LayerKind::Sites;
    std::string title;
    /// Pylon query: where the table is, how pylons and links look; of buildings "TEXB:" and the
    /// path of their document.
    std::string source;
    std::string layer; ///< of sites: their layer of the source; empty: the first
    std::string
        endLayer; ///< of links: layer of the source that holds their ends; empty: the second
    std::string siteField; ///< field that names a site; empty: the one that is called so
};

/// Reads the text of a layer file. Values are taken as they are: in CDATA sections, which may hold
/// anything but their own end before the closing tag, or as text that may be escaped or not.
///
/// @throws BadLayer  no layer file, another kind of layer, no source
LayerFile parseLayerFile(std::string_view text);

/// The same for a local file.
///
/// @throws BadLayer  also where it cannot be read or is too large (LayerText.h)
LayerFile readLayerFile(const std::string &path);

} // namespace vlt::scene
