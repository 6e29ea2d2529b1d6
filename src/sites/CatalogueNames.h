#pragma once

#include <QDomElement>
#include <QStringList>

namespace vlt::sites {

/// The descriptions of an entry of a catalogue ("description_en" ...) in every language that it
/// has, by language code, each once.
QStringList catalogueNames(const QDomElement &entry);

} // namespace vlt::sites
