#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vlt::driver {

/// A piece of markup. Names are local names, because prefixes differ between office programs.
struct XmlTag
{
    enum class Kind {
        Open,
        Empty,
        Close,
        CharacterData, ///< <![CDATA[...]]>: `attributes` is its text
        Other,         ///< comment, declaration, processing instruction
    };

    Kind kind = Kind::Other;
    std::string_view prefix; ///< with its colon; may be empty
    std::string_view name;
    std::string_view attributes;
    const char *begin = nullptr;
    const char *end = nullptr; ///< position behind the closing ">"

    bool opens(std::string_view localName) const
    {
        return (kind == Kind::Open || kind == Kind::Empty) && name == localName;
    }
    bool closes(std::string_view localName) const
    {
        return kind == Kind::Close && name == localName;
    }
};

/// Reads the next piece of markup at or after `at`. Returns false if there is no complete one
/// before `end`; tag.begin is then the start of an incomplete one, or `end`. Throws RefusedFile
/// (DocumentType) at a document type declaration, so that entities are never defined or fetched.
bool nextTag(const char *at, const char *end, XmlTag &tag);

/// Maximum size of a piece of markup in bytes. It is limited because an incomplete piece is read
/// again with each chunk.
constexpr std::size_t MaxMarkupSize = std::size_t{4} << 20;

/// Throws RefusedFile (Malformed) if an incomplete piece is larger than the maximum.
void refuseEndlessMarkup(const char *begin, const char *end);

/// Value of an attribute by its local name, with entities not yet decoded; nothing if it is
/// missing.
std::optional<std::string_view> attribute(std::string_view attributes, std::string_view localName);

/// Whether decodeXml() would change a text.
bool needsDecoding(std::string_view text);
/// A text with predefined entities and character references replaced, and with LF as line end.
std::string decodeXml(std::string_view text);

/// Reads the tags of a whole document part in memory.
class XmlCursor
{
public:
    explicit XmlCursor(std::string_view text) : m_at(text.data()), m_end(text.data() + text.size())
    {}

    bool next(XmlTag &tag);

private:
    const char *m_at;
    const char *m_end;
};

} // namespace vlt::driver
