#pragma once

#include <optional>
#include <string>

namespace vlt::localfiles {

/// While it lives, nothing that the geodata library opens on this thread fetches anything over the
/// network: some formats of local files may name addresses, for instance of a coordinate system.
class NoNetwork
{
public:
    NoNetwork();
    ~NoNetwork();
    NoNetwork(const NoNetwork &) = delete;
    NoNetwork &operator=(const NoNetwork &) = delete;

private:
    std::optional<std::string> m_allowedBefore;
};

/// Takes the network's file systems (/vsicurl/, /vsis3/ ...) away from the geodata library for the
/// whole program and for good: files of some formats name other files, which may lie there.
void closeNetworkFileSystems();

} // namespace vlt::localfiles
