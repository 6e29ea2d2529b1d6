#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// Which end of its link a column is about.
enum class LinkEndId {
    None,
    A,
    B,
};

/// By what the ends of a table are told apart.
enum class EndStyle {
    Names,   ///< A and B, TX and RX ...: a digit counts only where there is no such word
    Numbers, ///< 1 and 2: TX and RX mean transmitting and receiving
    Zero,    ///< the same with 0 and 1
};

/// A column name without the words that tell the end.
struct EndWords
{
    LinkEndId end = LinkEndId::None;
    bool isNumbered = false;        ///< a digit told the end
    std::string endWord;            ///< what told it
    std::size_t endIndex = 0;       ///< its place among the words, from 0
    std::vector<std::string> words; ///< the others; "site", "end" only where they stand alone
};

/// Takes a column name of a table of links apart.
EndWords readEndWords(const std::string &name, EndStyle style);

} // namespace vlt::driver
