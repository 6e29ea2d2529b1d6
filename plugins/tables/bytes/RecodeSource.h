#pragma once

#include "plugins/tables/bytes/ByteSource.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::driver {

/// Converts a stream of any encoding to UTF-8. Removes a byte order mark at the start. A sequence
/// that is invalid in the encoding becomes U+FFFD.
class RecodeSource : public ByteSource
{
public:
    /// Throws RefusedFile (NotSupportedFormat) if the system does not support the encoding.
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
    std::string m_edge; ///< converted characters that did not fit into the caller's buffer
    std::size_t m_edgeBegin = 0;
    std::size_t m_unit = 1; ///< bytes to skip at an invalid sequence
    bool m_inputEnded = false;
};

/// Name of the encoding whose byte order mark is at the start of `head`, empty without a mark. Sets
/// `markSize` to the size of the mark in bytes.
std::string encodingOfMark(const std::string &head, std::size_t &markSize);

/// A text converted to UTF-8.
std::string recoded(const std::string &text, const std::string &encoding);

} // namespace vlt::driver
