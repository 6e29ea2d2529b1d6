#pragma once

#include "contract/TableKind.h"

#include <QString>

namespace vlt::tables {

/// How a table is to be read, where its reader is not to find out by itself; each empty for that.
struct TableReading
{
    QString sheet;     ///< of a workbook
    QString encoding;  ///< of a text file, such as "CP1250"; without a comma
    QString delimiter; ///< of a text file: "comma", "semicolon", "tab" or "bar"

    /// As connections and queries carry it: "sheet=Sites,encoding=CP1250", without a comma at the
    /// end; empty where nothing is given.
    QString parameters() const;

    /// The connection that reads a table so.
    ///
    /// @param systems  options that stand before the others, with a comma at their end
    QString connection(contract::TableKind kind, const QString &path,
                       const QString &systems = {}) const;
};

} // namespace vlt::tables
