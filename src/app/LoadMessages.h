#pragma once

#include <QString>

namespace vlt::app {

/// Loads the dictionaries of the language: first those of the builder, then those of the telecom
/// add-on, whose texts have priority.
///
/// @param installDir   root of the installation
/// @param messagesDir  the builder's dictionaries, relative to installDir
/// @param language     name or code of the language
void loadTexts(const QString &installDir, const QString &messagesDir, const QString &language);

/// The same, and makes Qt translate message keys with these texts. Needs the application object; to
/// be called once.
void loadMessages(const QString &installDir, const QString &messagesDir, const QString &language);

} // namespace vlt::app
