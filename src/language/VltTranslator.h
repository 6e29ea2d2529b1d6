#pragma once

#include <QTranslator>

/// Makes Qt's translation functions use the language manager: the disambiguation is the message
/// key. Without a key, or with one that no dictionary has, the translation is null, so that Qt
/// shows the source text.
class VltTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

    /// Always false, because Qt ignores translators that are empty.
    bool isEmpty() const override { return false; }
};
