#pragma once

#include "platform/Result.h"

#include <QHash>
#include <QString>

class QIODevice;

namespace vlt::language {

/// Texts by message key.
using Texts = QHash<QString, QString>;

/// Reads one dictionary: a Qt Linguist file (.ts) whose messages have their key as "id". The file
/// is not compiled, so that changes to an installed one are effective at the next start.
///
/// Messages without an id or without a text, and those marked "vanished" or "obsolete", are left
/// out; a text that is still "unfinished" is used. Plural forms are not supported. If a key occurs
/// twice, its last text is used.
///
/// @par Errors  The file cannot be opened or read to its end, is not well-formed XML or is not a
///              Linguist file; the text gives the line. Nothing of such a file is used.
Result<Texts> readDictionary(const QString &path);

/// The same for a device that is open for reading.
///
/// @param path  appears in errors only
Result<Texts> readDictionary(QIODevice &device, const QString &path);

} // namespace vlt::language
