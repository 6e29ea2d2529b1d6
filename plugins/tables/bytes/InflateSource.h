#pragma once

#include "plugins/tables/bytes/ByteSource.h"

#include <cstdint>
#include <memory>
#include <vector>

struct inflate_state;

namespace vlt::driver {

/// Inflates a raw deflate stream and checks it against the CRC in the directory of the archive.
///
/// The sizes in the archive are not used: the stream ends where the deflate data ends.
class InflateSource : public ByteSource
{
public:
    InflateSource(std::unique_ptr<ByteSource> compressed, uint32_t expectedCrc);
    ~InflateSource() override;

    std::size_t read(char *to, std::size_t size) override;

private:
    std::unique_ptr<ByteSource> m_compressed;
    std::unique_ptr<inflate_state> m_state;
    std::vector<char> m_input;
    uint32_t m_expectedCrc;
    uint32_t m_crc = 0;
    bool m_inputEnded = false;
};

} // namespace vlt::driver
