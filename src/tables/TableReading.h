#pragma once

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
    /// @param prefix  "site:" or "link:"
    QString connection(const QString &prefix, const QString &path) const;
};

} // namespace vlt::tables
