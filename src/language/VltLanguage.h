#pragma once

#include <QString>

/// A language of the user interface.
struct VltLanguage
{
    /// Two- or three-letter code ("fr"), as pages and file names use it.
    QString text = QStringLiteral("en");
    bool rightToLeft = false;

    /// The language with a name: the English name, the language's own name or its code, with or
    /// without a country ("FRENCH", "français", "fr", "fr_FR"), in any case of letters. English for
    /// an unknown name.
    static VltLanguage named(const QString &name);
};
