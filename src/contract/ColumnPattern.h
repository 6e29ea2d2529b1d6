#pragma once

#include <memory>
#include <string>
#include <string_view>

struct pcre2_real_code_8;

namespace vlt::contract {

/// A pattern of the names of columns, in Perl's syntax. It accepts whole names only, without regard
/// to the case of letters; a dot stands for any character, letters and blanks are those of Unicode.
class ColumnPattern
{
public:
    /// @param pattern  UTF-8 @throws std::invalid_argument  it is no pattern
    explicit ColumnPattern(const std::string &pattern);

    /// @param name  UTF-8; any other bytes match nothing, nor does a name of more than 1,000 bytes
    bool matches(std::string_view name) const;

private:
    std::shared_ptr<pcre2_real_code_8> m_code;
};

/// A name of a column as patterns are applied to it: UTF-8 where it was Latin-1, as a degree sign
/// in one byte is, and with a blank for each no-break space.
std::string plainColumnName(std::string_view name);

} // namespace vlt::contract
