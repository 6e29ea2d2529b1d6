#pragma once

#include <QString>

namespace vlt {

/// One thing in a user's file that was skipped or mended.
struct Problem
{
    enum class Severity { Warning, Error };

    Severity severity = Severity::Warning;
    QString text;
    QString file;
    int row = 0;    ///< row of the file as a spreadsheet counts it, from 1; 0 where no row is meant
    QString column; ///< name of the column as in the header; empty where no column is meant
};

} // namespace vlt
