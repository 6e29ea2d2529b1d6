#include "plugins/tables/formats/xls/XlsContext.h"

#include "plugins/tables/bytes/LittleEndian.h"
#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/cells/Utf8.h"

namespace vlt::driver {

namespace {

constexpr unsigned WideFlag = 0x01;
constexpr unsigned ExtendedFlag = 0x04;
constexpr unsigned RichFlag = 0x08;

} // namespace

void appendXlsCharacters(std::string &to, std::string_view bytes, bool wide, uint32_t &surrogate)
{
    if (!wide) {
        for (const char c : bytes)
            appendUtf8(to, static_cast<unsigned char>(c));
        return;
    }
    for (std::size_t at = 0; at + 2 <= bytes.size(); at += 2) {
        const uint32_t unit = u16(bytes.data() + at);
        if (unit >= 0xD800 && unit < 0xDC00)
            surrogate = unit;
        else if (unit >= 0xDC00 && unit < 0xE000) {
            appendUtf8(to, surrogate ? 0x10000 + ((surrogate - 0xD800) << 10) + (unit - 0xDC00)
                                     : 0xFFFD);
            surrogate = 0;
        } else
            appendUtf8(to, unit);
    }
}

std::string xlsText(std::string_view data, const XlsContext &context, bool shortLength)
{
    const std::size_t lengthSize = shortLength ? 1 : 2;
    if (data.size() < lengthSize)
        return {};
    std::size_t count = shortLength ? static_cast<unsigned char>(data[0]) : u16(data.data());
    data.remove_prefix(lengthSize);
    if (!context.isBiff8)
        return recoded(std::string(data.substr(0, count)), context.codePage);
    if (data.empty())
        return {};
    const bool wide = static_cast<unsigned char>(data[0]) & WideFlag;
    std::string text;
    uint32_t surrogate = 0;
    appendXlsCharacters(text, data.substr(1, wide ? 2 * count : count), wide, surrogate);
    return text;
}

std::vector<Extent> extentsFrom(const std::vector<Extent> &stream, uint64_t position)
{
    std::vector<Extent> rest;
    for (Extent extent : stream) {
        const uint64_t skipped = std::min(position, extent.size);
        position -= skipped;
        if (skipped < extent.size)
            rest.push_back({extent.offset + skipped, extent.size - skipped});
    }
    return rest;
}

bool XlsStrings::start()
{
    constexpr std::size_t CountsSize = 8;
    if (m_position == 0)
        return false;
    m_records = std::make_unique<XlsRecords>(
        std::make_unique<FileSource>(m_file, extentsFrom(m_stream, m_position)));
    if (!m_records->next() || m_records->type() != XlsSst || m_records->data().size() < CountsSize)
        return false;
    m_rest = m_records->data().substr(CountsSize);
    return true;
}

/// Reads bytes that may continue in the next record.
bool XlsStrings::bytes(void *to, std::size_t size)
{
    auto *out = static_cast<char *>(to);
    while (size > 0) {
        if (m_rest.empty()) {
            if (m_records->peek() != XlsContinue || !m_records->next())
                return false;
            m_rest = m_records->data();
            continue;
        }
        const std::size_t part = std::min(size, m_rest.size());
        if (out) {
            std::memcpy(out, m_rest.data(), part);
            out += part;
        }
        m_rest.remove_prefix(part);
        size -= part;
    }
    return true;
}

bool XlsStrings::skip(std::size_t size)
{
    return bytes(nullptr, size);
}

/// Reads characters. A record in which they continue states their width again.
bool XlsStrings::readCharacters(std::size_t count, bool wide)
{
    uint32_t surrogate = 0;
    while (count > 0) {
        if (m_rest.empty()) {
            do { // some writers insert empty records
                if (m_records->peek() != XlsContinue || !m_records->next())
                    return false;
            } while (m_records->data().empty());
            m_rest = m_records->data();
            wide = static_cast<unsigned char>(m_rest[0]) & WideFlag;
            m_rest.remove_prefix(1);
        }
        const std::size_t width = wide ? 2 : 1;
        const std::size_t part = std::min(count, m_rest.size() / width);
        if (part == 0)
            return false;
        appendXlsCharacters(m_text, m_rest.substr(0, part * width), wide, surrogate);
        m_rest.remove_prefix(part * width);
        count -= part;
    }
    return true;
}

bool XlsStrings::readString()
{
    char head[3];
    if (!bytes(head, sizeof head))
        return false;
    const std::size_t count = u16(head);
    const auto flags = static_cast<unsigned char>(head[2]);
    char number[4] = {};
    std::size_t runs = 0;
    std::size_t extension = 0;
    if (flags & RichFlag) {
        if (!bytes(number, 2))
            return false;
        runs = u16(number);
    }
    if (flags & ExtendedFlag) {
        if (!bytes(number, 4))
            return false;
        extension = u32(number);
    }
    m_text.clear();
    if (!readCharacters(count, flags & WideFlag))
        return false;
    m_holdZeros = m_holdZeros || m_text.find('\0') != std::string::npos;
    m_texts.add(m_text);
    return skip(4 * runs + extension);
}

std::optional<std::string_view> XlsStrings::at(uint32_t index)
{
    if (!m_records && !m_ended)
        m_ended = !start();
    while (!m_ended && m_texts.size() <= index)
        m_ended = !readString();
    if (index >= m_texts.size())
        return std::nullopt;
    return m_texts[index];
}

} // namespace vlt::driver
