#pragma once

#include <QTranslator>

/// Answers Qt's translation lookups from the language manager: the disambiguation is the message
/// key. A lookup without one, or with a key that no dictionary has, gets a null text, so that Qt
/// shows the source text.
class VltTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

    /// Never: Qt leaves translators out that say they are empty.
    bool isEmpty() const override { return false; }
};
