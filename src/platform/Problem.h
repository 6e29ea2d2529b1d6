#pragma once

#include <QString>

namespace vlt {

/// A part of a user's file that was skipped or corrected.
struct Problem
{
    enum class Severity { Warning, Error };

    Severity severity = Severity::Warning;
    QString text;
    QString file;
    int row = 0;    ///< row of the file as a spreadsheet counts it, from 1; 0: no row
    QString column; ///< name of the column as in the header; empty: no column
};

} // namespace vlt
