#pragma once

#include <optional>
#include <string>

namespace vlt::localfiles {

/// Keeps the geodata library off the network on this thread, as long as the object exists. Local
/// files of some formats may contain addresses, for instance of a coordinate system.
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

/// Removes the network file systems (/vsicurl/, /vsis3/ ...) from the geodata library, permanently
/// and for all threads. Files of some formats refer to other files, which might be there.
void closeNetworkFileSystems();

} // namespace vlt::localfiles
