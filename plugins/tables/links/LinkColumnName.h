#pragma once

#include "plugins/tables/roles/Vocabulary.h"

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
    Names,   ///< by the words of the vocabulary; a digit counts only without such a word
    Numbers, ///< by 1 and 2: TX and RX mean transmitting and receiving
    Zero,    ///< the same with 0 and 1
};

/// A column name without the words that name the end.
struct LinkColumnName
{
    LinkEndId end = LinkEndId::None;
    bool isNumbered = false;        ///< a digit names the end
    bool isWeak = false;            ///< the word may also mean something else
    std::size_t endIndex = 0;       ///< index of the first such word, from 0
    std::vector<std::string> words; ///< the others, as separatedWords() gives them
};

/// The words of a column name in a table of links: like separatedWords(), but short words are also
/// separated from the word for an end: "xa" gives x, a; "xstart" gives x, start.
std::vector<std::string> linkWords(const std::string &name, const Vocabulary &vocabulary);

/// Finds the word that names the end. It is the first one that names nothing else ("Site A X",
/// "X A"); a weak word counts at the start or at the end of the name only, and a word in a phrase
/// for a value counts last: in "TX1 (MHz) 2", "TX1 (MHz)" is a frequency and 2 the end.
LinkColumnName readColumnName(const std::vector<std::string> &words, EndStyle style,
                              const Vocabulary &vocabulary);

/// The words of a name without all that can name an end.
std::vector<std::string> withoutEnds(const std::vector<std::string> &words,
                                     const Vocabulary &vocabulary);

} // namespace vlt::driver
