#pragma once

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
};

} // namespace vlt::localfiles
