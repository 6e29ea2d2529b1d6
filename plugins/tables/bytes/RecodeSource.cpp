#include "plugins/tables/bytes/RecodeSource.h"

#include "plugins/tables/bytes/Refusal.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <iconv.h>

namespace vlt::driver {

namespace {

constexpr std::size_t EdgeSize = 16; ///< enough for any character
constexpr std::size_t InputSize = std::size_t{64} << 10;
constexpr char Replacement[] = "\xEF\xBF\xBD";
constexpr std::size_t MaxSequenceSize = 8; ///< bytes of the longest sequence for one character

class MemorySource : public ByteSource
{
public:
    explicit MemorySource(const std::string &text) : m_text(text) {}

    std::size_t read(char *to, std::size_t size) override
    {
        const std::size_t got = m_text.copy(to, size, m_at);
        m_at += got;
        return got;
    }

private:
    const std::string &m_text;
    std::size_t m_at = 0;
};

} // namespace

RecodeSource::RecodeSource(std::unique_ptr<ByteSource> source, const std::string &encoding)
    : m_source(std::move(source))
    , m_converter(iconv_open("UTF-8", encoding.c_str()))
    , m_input(InputSize)
{
    if (encoding.starts_with("UTF-16"))
        m_unit = 2;
    else if (encoding.starts_with("UTF-32"))
        m_unit = 4;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the error value of iconv_open()
    if (m_converter == reinterpret_cast<iconv_t>(-1))
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_ENCODING", {encoding});
}

RecodeSource::~RecodeSource()
{
    iconv_close(m_converter);
}

void RecodeSource::fillInput()
{
    std::memmove(m_input.data(), m_input.data() + m_inputBegin, m_inputEnd - m_inputBegin);
    m_inputEnd -= m_inputBegin;
    m_inputBegin = 0;
    const std::size_t got =
        m_source->read(m_input.data() + m_inputEnd, m_input.size() - m_inputEnd);
    m_inputEnded = got == 0;
    m_inputEnd += got;
}

/// The caller's buffer may be the end of a chunk and smaller than the next character. That
/// character is then returned in parts, because a result of 0 would mean the end.
std::size_t RecodeSource::read(char *to, std::size_t size)
{
    if (m_edgeBegin == m_edge.size() && size >= EdgeSize)
        return convert(to, size);
    if (m_edgeBegin == m_edge.size()) {
        m_edgeBegin = 0;
        m_edge.resize(EdgeSize);
        m_edge.resize(convert(m_edge.data(), EdgeSize));
    }
    const std::size_t got = m_edge.copy(to, size, m_edgeBegin);
    m_edgeBegin += got;
    return got;
}

/// Converts into a buffer that has space for any character; 0 at the end.
std::size_t RecodeSource::convert(char *to, std::size_t size)
{
    char *out = to;
    std::size_t room = size;
    while (room == size) {
        if (!m_inputEnded && m_inputEnd - m_inputBegin < MaxSequenceSize)
            fillInput();
        if (m_inputBegin == m_inputEnd)
            break;
        char *in = m_input.data() + m_inputBegin;
        std::size_t left = m_inputEnd - m_inputBegin;
        const std::size_t leftBefore = left;
        const std::size_t result = iconv(m_converter, &in, &left, &out, &room);
        m_inputBegin = static_cast<std::size_t>(in - m_input.data());
        const bool cutShort = result == static_cast<std::size_t>(-1) && errno == EINVAL;
        const bool unknown = result == static_cast<std::size_t>(-1) && errno == EILSEQ;
        if (cutShort && m_inputEnded)
            m_inputBegin = m_inputEnd; // an incomplete character at the end of the file
        else if (unknown && room >= sizeof Replacement) {
            std::memcpy(out, Replacement, sizeof Replacement - 1);
            out += sizeof Replacement - 1;
            room -= sizeof Replacement - 1;
            m_inputBegin = std::min(m_inputBegin + m_unit, m_inputEnd);
            iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
        } else if (cutShort)
            fillInput();
        else if (room == size && left == leftBefore)
            break; // the buffer is smaller than one character
    }
    return size - room;
}

std::string encodingOfMark(const std::string &head, std::size_t &markSize)
{
    static constexpr struct
    {
        const char *mark;
        std::size_t size;
        const char *encoding;
    } Marks[] = {{"\xEF\xBB\xBF", 3, "UTF-8"},
                 {"\xFF\xFE\0\0", 4, "UTF-32LE"},
                 {"\0\0\xFE\xFF", 4, "UTF-32BE"},
                 {"\xFF\xFE", 2, "UTF-16LE"},
                 {"\xFE\xFF", 2, "UTF-16BE"}};
    for (const auto &mark : Marks) {
        if (head.compare(0, mark.size, std::string(mark.mark, mark.size)) == 0) {
            markSize = mark.size;
            return mark.encoding;
        }
    }
    markSize = 0;
    return {};
}

std::string recoded(const std::string &text, const std::string &encoding)
{
    RecodeSource source(std::make_unique<MemorySource>(text), encoding);
    std::string result;
    char piece[4096];
    while (const std::size_t got = source.read(piece, sizeof piece))
        result.append(piece, got);
    return result;
}

} // namespace vlt::driver
