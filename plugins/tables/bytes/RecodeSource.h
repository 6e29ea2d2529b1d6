#pragma once

#include "plugins/tables/bytes/ByteSource.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// Turns a stream of any encoding into UTF-8. A leading byte order mark is dropped; a sequence that
/// the encoding does not know becomes U+FFFD.
class RecodeSource : public ByteSource
{
public:
    /// Throws RefusedFile (NotSupportedFormat) for an encoding that the system does not know.
    RecodeSource(std::unique_ptr<ByteSource> source, const std::string &encoding);
    ~RecodeSource() override;

    std::size_t read(char *to, std::size_t size) override;

private:
    void fillInput();
    std::size_t convert(char *to, std::size_t size);

    std::unique_ptr<ByteSource> m_source;
    void *m_converter;
    std::vector<char> m_input;
    std::size_t m_inputBegin = 0;
    std::size_t m_inputEnd = 0;
    std::string m_edge; ///< characters that the caller had no room for as a whole
    std::size_t m_edgeBegin = 0;
    std::size_t m_unit = 1; ///< bytes to step over after a sequence that means nothing
    bool m_inputEnded = false;
};

/// Name of the encoding that a byte order mark at the start of `head` tells, else empty; `markSize`
/// is its length.
std::string encodingOfMark(const std::string &head, std::size_t &markSize);

/// One text in UTF-8.
std::string recoded(const std::string &text, const std::string &encoding);

} // namespace vlt::driver
