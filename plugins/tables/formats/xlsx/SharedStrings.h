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

/// The texts that the sheets of an XLSX workbook refer to by number. They are read only as far as
/// needed.
class SharedStrings
{
public:
    /// `member` is the name of the part with the texts; empty if the workbook has none.
    SharedStrings(std::shared_ptr<const ZipArchive> archive, std::string member);
    ~SharedStrings();

    /// The text with that number, valid as long as this object; nothing if it does not exist.
    std::optional<std::string_view> at(uint64_t index);

    /// From now on, keeps only the texts with these numbers (sorted), and drops the texts read so
    /// far. For sheets that use only a small part of the texts.
    void keepOnly(std::vector<uint64_t> wanted);

    /// Whether a text read so far contains a zero byte.
    bool holdZeros() const { return m_holdZeros; }

private:
    class Stream;

    void readUpTo(uint64_t index);
    void keepText(std::string_view text);

    std::shared_ptr<const ZipArchive> m_archive;
    std::string m_member;
    std::unique_ptr<Stream> m_stream;
    StringPool m_texts;             ///< by number, or by index in m_wanted
    std::vector<uint64_t> m_wanted; ///< empty: all
    uint64_t m_count = 0;           ///< number of texts read so far
    bool m_ended = false;
    bool m_holdZeros = false;
};

/// Text of a rich-text element (shared string or inline string): its runs joined, without phonetic
/// hints, with _xHHHH_ escapes replaced. The markup may be incomplete at its end. Source: ECMA-376,
/// 18.4.8 and 22.9.2.19.
std::string richText(std::string_view markup);

} // namespace vlt::driver
