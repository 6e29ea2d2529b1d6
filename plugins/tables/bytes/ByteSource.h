#pragma once

#include <cstddef>

namespace vlt::driver {

/// A stream of bytes read from front to back.
class ByteSource
{
public:
    virtual ~ByteSource() = default;

    /// Reads up to `size` bytes into `to` and returns their number; 0 means the end. Throws
    /// RefusedFile if the input is damaged.
    virtual std::size_t read(char *to, std::size_t size) = 0;
};

} // namespace vlt::driver
