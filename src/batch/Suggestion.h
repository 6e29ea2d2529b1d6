#pragma once

#include <QStringList>

namespace vlt::batch {

/// "; did you mean '--sector-radius'?" for a name that is similar to one of `names`, in the
/// language in use; empty if none is similar.
QString didYouMean(const QString &wrong, const QStringList &names);

} // namespace vlt::batch
