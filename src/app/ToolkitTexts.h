#pragma once

#include <QTranslator>

namespace vlt::app {

/// Translates the texts of Qt's standard buttons ("&Yes", "Cancel" ...) with the dictionaries, so
/// that message boxes are in the chosen language also on systems without Qt's translations.
class ToolkitTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

    /// Always false: Qt does not use an empty translator.
    bool isEmpty() const override { return false; }
};

/// Installs the translation of Qt's own texts: Qt's translation if the system has it for the
/// language, else ToolkitTexts. Needs the application object; to be called once, after
/// loadMessages().
///
/// @param languageCode  "fr", "en" ...
void installToolkitTexts(const QString &languageCode);

} // namespace vlt::app
