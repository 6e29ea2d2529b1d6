#pragma once

#include "contract/TableTexts.h"

#include <stdexcept>
#include <string>

namespace vlt::driver {

/// Why a file is not read as a table.
enum class Refusal {
    CannotRead,         ///< missing, a directory, no permission, input error
    Empty,              ///< nothing in it, or a header without rows
    NotATable,          ///< neither text nor a workbook
    NotSupportedFormat, ///< a known format of another kind
    Encrypted,          ///< protected by a password
    DocumentType,       ///< XML with a document type declaration: entities are never resolved
    Malformed,          ///< damaged or cut short
    OneColumn,          ///< text without a delimiter
    NoHeader,           ///< no row names the columns
    NoLinks,            ///< a table, but not one of links
    BadOption,          ///< an option of the connection string or an open option cannot be used
};

using contract::TableTextId;

/// Thrown inside the reader, caught where the file was opened; the text names the reason for the
/// user.
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
