#pragma once

#include "plugins/tables/bytes/ZipArchive.h"
#include "plugins/tables/cells/StringPool.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// The texts that the sheets of an XLSX workbook refer to by number, read as far as they are asked
/// for.
class SharedStrings
{
public:
    /// `member` is the archive's part that holds the texts; empty when the workbook has none.
    SharedStrings(std::shared_ptr<const ZipArchive> archive, std::string member);
    ~SharedStrings();

    /// The text with that number; nothing when there is none. Views stay valid for the life of this
    /// object.
    std::optional<std::string_view> at(uint64_t index);

    /// Keeps only the texts with these numbers (sorted): for sheets that use few of many. Forgets
    /// what was read.
    void keepOnly(std::vector<uint64_t> wanted);

    /// Whether a text that was read so far holds a zero.
    bool holdZeros() const { return m_holdZeros; }

private:
    class Stream;

    void readUpTo(uint64_t index);
    void keepText(std::string_view text);

    std::shared_ptr<const ZipArchive> m_archive;
    std::string m_member;
    std::unique_ptr<Stream> m_stream;
    StringPool m_texts;             ///< by number, or by position in m_wanted
    std::vector<uint64_t> m_wanted; ///< empty: all
    uint64_t m_count = 0;           ///< texts that were read
    bool m_ended = false;
    bool m_holdZeros = false;
};

/// Text of a rich-text element (shared string or inline string): its runs joined, phonetic hints
/// left out, _xHHHH_ escapes replaced; the markup may be cut at its end. Source: ECMA-376, 18.4.8
/// and 22.9.2.19.
std::string richText(std::string_view markup);

} // namespace vlt::driver
