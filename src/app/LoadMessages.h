#pragma once

#include <QString>

namespace vlt::app {

/// Loads the dictionaries of the language: the builder's, then those of the telecom add-on, whose
/// texts go before.
///
/// @param installDir   root of the installation
/// @param messagesDir  the builder's dictionaries, relative to installDir
/// @param language     name or code of the language
void loadTexts(const QString &installDir, const QString &messagesDir, const QString &language);

/// The same; from then on Qt's translation lookups of message keys are answered, too. Needs the
/// application object; to be called once.
void loadMessages(const QString &installDir, const QString &messagesDir, const QString &language);

} // namespace vlt::app
