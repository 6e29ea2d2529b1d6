#pragma once

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/formats/xml/XmlScan.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vlt::driver {

/// Finds the row elements of a sheet in a stream of XML without looking into them.
class XmlRowFramer
{
public:
    /// What the elements are called (local names) and which attribute gives a row's number.
    struct Names
    {
        std::string_view sheet;     ///< holds the container, if there is one
        std::string_view container; ///< holds the rows
        std::string_view row;
        std::string_view number;
    };

    /// With `insideContainer` the stream starts among the rows, the first of which is number
    /// `firstRow` unless it says otherwise; otherwise it starts somewhere before the container.
    XmlRowFramer(std::unique_ptr<ByteSource> source, const Names &names, bool insideContainer,
                 int64_t firstRow, uint64_t streamOffset);

    /// Goes to the next row element that is not empty.
    bool advance();
    int64_t rowNumber() const { return m_rowNumber; }
    /// Markup between the row's opening and closing tags.
    std::string_view inside() const;
    /// Where the row's opening tag starts, counted from the start of the stream plus streamOffset.
    uint64_t position() const { return m_rowPosition; }
    /// Prefix of the row's elements with its colon, or empty.
    const std::string &prefix() const { return m_prefix; }

private:
    bool readTag(XmlTag &tag);
    bool enterContainer();
    void findRowEnd(const XmlTag &tag);

    ChunkedInput m_input;
    Names m_names;
    uint64_t m_windowOffset; ///< stream position of the window's first byte
    const char *m_at;        ///< where the search goes on
    const char *m_inside = nullptr;
    const char *m_rowEnd = nullptr;
    uint64_t m_rowPosition = 0;
    int64_t m_rowNumber = 0;
    int64_t m_nextRow;
    std::string m_prefix;
    std::string m_closing; ///< "</prefix:row"
    bool m_entered;
    bool m_done = false;
};

} // namespace vlt::driver
