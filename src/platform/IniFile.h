#pragma once

#include "platform/Result.h"

#include <QHash>
#include <QString>

namespace vlt::platform {

/// The values of an ini file, copied out of it; the file is closed again once it is read.
///
/// Sections and keys are compared without regard to case; of a key given twice the last value
/// holds. ';' and '#' start a comment, also inside a value that is not quoted. Texts are UTF-8
/// where valid, else Latin-1; a byte order mark before them is passed over.
class IniFile
{
public:
    /// @par Errors  a path that names no regular file; a file with a syntax error or a line
    ///              of 1024 characters, of which nothing is kept (the ini library names it on
    ///              stderr).
    static Result<IniFile> open(const QString &path);

    /// Value of a key; empty where the section or the key is missing.
    QString value(const QString &section, const QString &key) const;

private:
    QHash<QString, QString> m_values; // "section:key" with its case folded
};

} // namespace vlt::platform
