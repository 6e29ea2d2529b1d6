#pragma once

#include <memory>
#include <string>
#include <string_view>

struct pcre2_real_code_8;

namespace vlt::contract {

/// A regular expression for the names of columns, in Perl's syntax. It matches whole names only and
/// ignores the case of letters. A dot stands for any character; letters and blanks are those of
/// Unicode.
class ColumnPattern
{
public:
    /// @param pattern  UTF-8
    /// @throws std::invalid_argument  `pattern` is not a regular expression
    explicit ColumnPattern(const std::string &pattern);

    /// @param name  UTF-8; any other text and any name of more than 1,000 bytes do not match
    bool matches(std::string_view name) const;

private:
    std::shared_ptr<pcre2_real_code_8> m_code;
};

/// The name of a column in the form to which patterns are applied: Latin-1 (for instance a degree
/// sign in one byte) becomes UTF-8, each no-break space becomes a blank, a capital I with a dot one
/// without.
std::string plainColumnName(std::string_view name);

} // namespace vlt::contract
