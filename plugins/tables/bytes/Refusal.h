#pragma once

#include "contract/TableTexts.h"

#include <stdexcept>
#include <string>

namespace vlt::driver {

/// Reasons why a file cannot be read as a table.
enum class Refusal {
    CannotRead,         ///< missing, a directory, no permission, input error
    Empty,              ///< no content, or a header without rows
    NotATable,          ///< neither text nor a workbook
    NotSupportedFormat, ///< a known format that is not supported
    Encrypted,          ///< protected by a password
    DocumentType,       ///< XML with a document type declaration, whose entities could be an attack
    Malformed,          ///< damaged or truncated
    OneColumn,          ///< text without a delimiter
    NoHeader,           ///< no row names the columns
    NoLinks,            ///< a table, but not of links
    BadOption,          ///< an option of the connection string or an open option cannot be used
};

using contract::TableTextId;

/// Thrown by readers and caught where the file was opened. The text is the reason for the user.
class RefusedFile : public std::runtime_error
{
public:
    RefusedFile(Refusal reason, TableTextId text,
                std::initializer_list<std::string_view> values = {})
        : std::runtime_error(contract::formatted(text, values))
        , m_reason(reason)
    {}

    Refusal reason() const { return m_reason; }

private:
    Refusal m_reason;
};

} // namespace vlt::driver
