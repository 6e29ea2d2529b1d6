#include "plugins/scene/layers/LinkLayerStyle.h"

namespace vlt::scene {

LinkLayerStyle readLinkLayerStyle(const contract::ConnectionString &source)
{
    const ItemText option = [&source](std::string_view key) { return styleOption(source, key); };
    return {readSiteStyle(source), readLinkAppearance(option, ClearanceWord::Accepted)};
}

} // namespace vlt::scene
