#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The end of the link that a column belongs to.
enum class LinkEndId {
    None,
    A,
    B,
};

/// How the columns of a table distinguish the ends.
enum class EndStyle {
    Names,   ///< A and B, TX and RX ...; a digit counts only without such a word
    Numbers, ///< 1 and 2: TX and RX mean transmitting and receiving
    Zero,    ///< the same with 0 and 1
};

/// A column name without the words that name the end.
struct EndWords
{
    LinkEndId end = LinkEndId::None;
    bool isNumbered = false;        ///< a digit names the end
    std::string endWord;            ///< the word that names the end
    std::size_t endIndex = 0;       ///< index of that word in the name, from 0
    std::vector<std::string> words; ///< the others; "site" and "end" only if they are alone
};

/// Splits a column name of a table of links.
EndWords readEndWords(const std::string &name, EndStyle style);

} // namespace vlt::driver
