#pragma once

#include "plugins/tables/bytes/ChunkedInput.h"

#include <cstdint>
#include <string_view>

namespace vlt::driver {

/// The records of a BIFF stream, in their order. Source of the format: [MS-XLS].
class XlsRecords
{
public:
    explicit XlsRecords(std::unique_ptr<ByteSource> stream)
        : m_input(std::move(stream))
        , m_at(m_input.begin())
    {}

    /// Goes to the next record; false at the end of the stream. The data of the previous one become
    /// invalid.
    bool next()
    {
        if (!ensure(HeaderSize))
            return false;
        m_type = static_cast<uint16_t>(byte(0) | byte(1) << 8);
        const std::size_t size = byte(2) | byte(3) << 8;
        if (!ensure(HeaderSize + size))
            return false;
        m_data = {m_at + HeaderSize, size};
        m_at += HeaderSize + size;
        m_position += HeaderSize + size;
        return true;
    }
    /// The type of the next record; 0 at the end. The data of the current one become invalid.
    uint16_t peek()
    {
        return ensure(HeaderSize) ? static_cast<uint16_t>(byte(0) | byte(1) << 8) : 0;
    }

    uint16_t type() const { return m_type; }
    std::string_view data() const { return m_data; }
    /// Position of the next record from the start of the stream, in bytes.
    uint64_t position() const { return m_position; }

private:
    static constexpr std::size_t HeaderSize = 4;

    unsigned byte(std::size_t at) const { return static_cast<unsigned char>(m_at[at]); }

    bool ensure(std::size_t size)
    {
        while (static_cast<std::size_t>(m_input.end() - m_at) < size) {
            const bool more = m_input.more(m_at);
            if (!more)
                return false;
            m_at = m_input.begin();
        }
        return true;
    }

    ChunkedInput m_input;
    const char *m_at;
    uint64_t m_position = 0;
    uint16_t m_type = 0;
    std::string_view m_data;
};

/// The record types that are used here.
enum XlsRecordType : uint16_t {
    XlsFormula = 0x0006,
    XlsEof = 0x000A,
    XlsDateMode = 0x0022,
    XlsFilePass = 0x002F,
    XlsContinue = 0x003C,
    XlsCodePage = 0x0042,
    XlsBoundSheet = 0x0085,
    XlsMulRk = 0x00BD,
    XlsRString = 0x00D6,
    XlsXf = 0x00E0,
    XlsSst = 0x00FC,
    XlsLabelSst = 0x00FD,
    XlsNumber = 0x0203,
    XlsLabel = 0x0204,
    XlsBoolErr = 0x0205,
    XlsFormula3 = 0x0206, ///< of BIFF3; the three formula records are equal up to the result
    XlsString = 0x0207,
    XlsRow = 0x0208,
    XlsRk = 0x027E,
    XlsFormula4 = 0x0406,
    XlsFormat = 0x041E,
    XlsBof = 0x0809,
};

} // namespace vlt::driver
