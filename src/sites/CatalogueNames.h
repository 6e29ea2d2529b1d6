#pragma once

#include <QDomElement>
#include <QStringList>

namespace vlt::sites {

/// The descriptions of a catalogue's entry ("description_en" ...) in all its languages, in the
/// order of the language codes, each once.
QStringList catalogueNames(const QDomElement &entry);

} // namespace vlt::sites
