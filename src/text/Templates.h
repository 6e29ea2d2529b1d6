#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace vlt::text {

/// Fills the numbered slots "%1" .. "%99" of a pattern one value after another: each value takes
/// every occurrence of the lowest number that is still there. A value that itself holds "%2" is
/// therefore filled again by the next one. Values for which no slot is left are dropped without a
/// word.
QString fillSlots(const QString &pattern, const QStringList &values);

/// A placeholder such as "__NAME__" and the text that takes its place.
using Replacement = std::pair<QString, QString>;

/// Replaces every occurrence of each placeholder, case-sensitively, in the given order; a value
/// that holds a later placeholder is replaced in its turn. An empty placeholder is passed over.
QString replacePlaceholders(QString text, const std::vector<Replacement> &inOrder);

} // namespace vlt::text
