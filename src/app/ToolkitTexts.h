#pragma once

#include <QTranslator>

namespace vlt::app {

/// Answers the lookups of Qt's standard buttons ("&Yes", "Cancel" ...) from the dictionaries, so
/// that boxes speak the chosen language on systems without Qt's own translations, too.
class ToolkitTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

    /// Never: Qt leaves translators out that say they are empty.
    bool isEmpty() const override { return false; }
};

/// Has Qt's own texts translated: by Qt's translations where the system has them for the language,
/// else by ToolkitTexts. Needs the application object; to be called once, after loadMessages().
///
/// @param languageCode  "fr", "en" ...
void installToolkitTexts(const QString &languageCode);

} // namespace vlt::app
