#pragma once

#include "platform/Result.h"

#include <QHash>
#include <QString>

namespace vlt::platform {

/// The values of an ini file, as a copy: the file is closed after reading.
///
/// Names of sections and keys match in any case of letters; if a key occurs twice, its last value
/// is used. ';' and '#' start a comment, also within a value that is not quoted. Texts are UTF-8 if
/// valid, else Latin-1; a byte order mark is skipped.
class IniFile
{
public:
    /// @par Errors  The path does not lead to a regular file; the file has a syntax error or a line
    ///              of 1024 characters, which the ini library also reports on stderr. Nothing of
    ///              such a file is used.
    static Result<IniFile> open(const QString &path);

    /// Value of a key; empty if the section or the key is missing.
    QString value(const QString &section, const QString &key) const;

private:
    QHash<QString, QString> m_values; // "section:key" with its case folded
};

} // namespace vlt::platform
