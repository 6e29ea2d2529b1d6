#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace vlt::text {

/// Fills the numbered slots "%1" .. "%99" of a pattern with one value after another: each value
/// replaces all occurrences of the lowest number that is left. A slot within a value, such as "%2",
/// is therefore filled by a later value. Values without a slot are ignored.
QString fillSlots(const QString &pattern, const QStringList &values);

/// A placeholder such as "__NAME__" and the text that replaces it.
using Replacement = std::pair<QString, QString>;

/// Replaces every occurrence of each placeholder, case-sensitively, in the given order. Within a
/// value, later placeholders are replaced as well. An empty placeholder is ignored.
QString replacePlaceholders(QString text, const std::vector<Replacement> &inOrder);

} // namespace vlt::text
