#pragma once

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/formats/xml/XmlScan.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vlt::driver {

/// Finds the row elements of a sheet in a stream of XML without reading their content.
class XmlRowFramer
{
public:
    /// Local names of the elements, and of the attributes with the number of a row and whether it
    /// is hidden.
    struct Names
    {
        std::string_view sheet;     ///< element around the container
        std::string_view container; ///< element around the rows
        std::string_view row;
        std::string_view number;
        std::string_view hidden;
    };

    /// @param insideContainer  the stream starts at a row; otherwise before the container
    /// @param firstRow         number of the first row, unless the row states another one
    /// @param streamOffset     is added to all positions
    XmlRowFramer(std::unique_ptr<ByteSource> source, const Names &names, bool insideContainer,
                 int64_t firstRow, uint64_t streamOffset);

    /// Goes to the next row element that is not empty.
    bool advance();
    int64_t rowNumber() const { return m_rowNumber; }
    bool isHidden() const { return m_isHidden; }
    /// Markup between the row's opening and closing tags.
    std::string_view inside() const;
    /// Position of the row's opening tag in the stream, plus streamOffset.
    uint64_t position() const { return m_rowPosition; }
    /// Position behind the container, plus streamOffset; 0 until advance() went there.
    uint64_t containerEnd() const { return m_containerEnd; }
    /// Prefix of the row's element with its colon, or empty.
    const std::string &prefix() const { return m_prefix; }

private:
    bool readTag(XmlTag &tag);
    bool enterContainer();
    void findRowEnd(const XmlTag &tag);

    ChunkedInput m_input;
    Names m_names;
    uint64_t m_windowOffset; ///< stream position of the window's first byte
    const char *m_at;        ///< where the search continues
    const char *m_inside = nullptr;
    const char *m_rowEnd = nullptr;
    uint64_t m_rowPosition = 0;
    uint64_t m_containerEnd = 0;
    int64_t m_rowNumber = 0;
    bool m_isHidden = false;
    int64_t m_nextRow;
    std::string m_prefix;
    std::string m_closing; ///< "</prefix:row"
    bool m_entered;
    bool m_done = false;
};

} // namespace vlt::driver
