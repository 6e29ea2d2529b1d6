#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::batch {

QString absolutePath(const QString &path);

/// An error whose text is that of the language in use already.
Error told(const QString &text, const QString &path);

/// An error about a file under the name that the user gave.
Error onFile(Error error, const QString &path);

/// Position of a name, whatever its case where it does not stand there as it is; -1 for none.
qsizetype indexOfName(const QStringList &names, const QString &name);

} // namespace vlt::batch
