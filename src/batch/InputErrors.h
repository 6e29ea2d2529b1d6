#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::batch {

QString absolutePath(const QString &path);

/// An error whose text is that of the language in use already.
Error told(const QString &text, const QString &path);

/// A file's error with the library's reason behind it.
Error withReason(const char *key, const char *text, const Error &error, const QString &path);

/// Position of a name, whatever its case where it does not stand there as it is; -1 for none.
qsizetype indexOfName(const QStringList &names, const QString &name);

} // namespace vlt::batch
