#pragma once

#include "platform/Result.h"

#include <QHash>
#include <QString>

class QIODevice;

namespace vlt::language {

/// Texts by message key.
using Texts = QHash<QString, QString>;

/// Reads one dictionary: a Qt Linguist file (.ts) whose messages carry their key as "id". It is
/// read as it stands, so whoever edits the installed file sees the result at the next start.
///
/// Messages without an id or without a text, and those marked "vanished" or "obsolete", are left
/// out; a text that is still "unfinished" is taken. Plural forms are not used. Of a key given twice
/// the last text holds.
///
/// @par Errors  a file that cannot be opened or read to its end, is not well-formed XML or no
///              Linguist file; the text names the line. Nothing of such a file is used.
Result<Texts> readDictionary(const QString &path);

/// The same for a device that is open for reading.
///
/// @param path  named in errors
Result<Texts> readDictionary(QIODevice &device, const QString &path);

} // namespace vlt::language
