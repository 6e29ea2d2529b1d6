#include "plugins/tables/bytes/InflateSource.h"

#include "plugins/tables/bytes/Refusal.h"

#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>

namespace vlt::driver {

namespace {

constexpr std::size_t InputSize = std::size_t{64} << 10;

} // namespace

InflateSource::InflateSource(std::unique_ptr<ByteSource> compressed, uint32_t expectedCrc)
    : m_compressed(std::move(compressed))
    , m_state(std::make_unique<inflate_state>())
    , m_input(InputSize)
    , m_expectedCrc(expectedCrc)
{
    isal_inflate_init(m_state.get());
}

InflateSource::~InflateSource() = default;

std::size_t InflateSource::read(char *to, std::size_t size)
{
    m_state->next_out = reinterpret_cast<uint8_t *>(to);
    m_state->avail_out = static_cast<uint32_t>(size);
    while (m_state->avail_out == size && m_state->block_state != ISAL_BLOCK_FINISH) {
        if (m_state->avail_in == 0 && !m_inputEnded) {
            const std::size_t got = m_compressed->read(m_input.data(), m_input.size());
            m_inputEnded = got == 0;
            m_state->next_in = reinterpret_cast<uint8_t *>(m_input.data());
            m_state->avail_in = static_cast<uint32_t>(got);
        }
        const uint32_t inputBefore = m_state->avail_in;
        if (isal_inflate(m_state.get()) < 0)
            throw RefusedFile(Refusal::Malformed, "MESS_TAB_DATA_DAMAGED");
        const bool stuck = m_inputEnded && inputBefore == 0 && m_state->avail_out == size;
        if (stuck && m_state->block_state != ISAL_BLOCK_FINISH)
            throw RefusedFile(Refusal::Malformed, "MESS_TAB_DATA_CUT");
    }
    const std::size_t got = size - m_state->avail_out;
    m_crc = crc32_gzip_refl(m_crc, reinterpret_cast<const uint8_t *>(to), got);
    if (got == 0 && m_crc != m_expectedCrc)
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_CHECK_SUM");
    return got;
}

} // namespace vlt::driver
