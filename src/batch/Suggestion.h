#pragma once

#include <QStringList>

namespace vlt::batch {

/// "; did you mean '--sector-radius'?" for a name that is nearly one of those that there are, in
/// the language in use; empty where none is near.
QString didYouMean(const QString &wrong, const QStringList &names);

} // namespace vlt::batch
