#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vlt::driver {

/// One piece of markup. Names are local names: office files differ in their prefixes.
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
    std::string_view prefix; ///< with its colon, or empty
    std::string_view name;
    std::string_view attributes;
    const char *begin = nullptr;
    const char *end = nullptr; ///< behind the closing ">"

    bool opens(std::string_view localName) const
    {
        return (kind == Kind::Open || kind == Kind::Empty) && name == localName;
    }
    bool closes(std::string_view localName) const
    {
        return kind == Kind::Close && name == localName;
    }
};

/// Reads the next piece of markup at or after `at`. False when none is complete before `end`;
/// tag.begin is then where the incomplete one starts, or `end`. Throws RefusedFile (DocumentType)
/// at a document type declaration: entities are never defined, let alone fetched.
bool nextTag(const char *at, const char *end, XmlTag &tag);

/// Longest piece of markup in a stream: an incomplete one is looked through again with each chunk.
constexpr std::size_t MaxMarkupSize = std::size_t{4} << 20;

/// Throws RefusedFile (Malformed) where an incomplete piece is already longer than that.
void refuseEndlessMarkup(const char *begin, const char *end);

/// Value of an attribute by its local name, entities undecoded; nothing when it is not there.
std::optional<std::string_view> attribute(std::string_view attributes, std::string_view localName);

/// Whether a text holds something that decodeXml() would change.
bool needsDecoding(std::string_view text);
/// A text with the predefined entities and character references replaced, line ends normalised to
/// LF.
std::string decodeXml(std::string_view text);

/// Walks over the tags of a whole document part in memory.
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
