#pragma once

#include <QStringList>

namespace vlt::batch {

QString absolutePath(const QString &path);

/// Index of a name, else of one that differs only in case; -1 for none.
qsizetype indexOfName(const QStringList &names, const QString &name);

} // namespace vlt::batch
