#pragma once

#include "language/Dictionary.h"
#include "language/VltLanguage.h"
#include "platform/Result.h"

#include <QList>
#include <QString>

/// The texts of the user interface in the chosen language.
///
/// It is set up once, at start-up: defaultSetup(), then findAndSetupAddOnsMessages(). Afterwards it
/// does not change. Dictionaries are the files "<anything>_<code>.ts" of a directory, in the order
/// of their names. If several have the same key, the text read last is used, so that an add-on can
/// replace texts of the builder.
class VltLanguageManager
{
public:
    static VltLanguageManager &getInstance();

    /// Sets the language (a name for VltLanguage::named()) and loads its dictionaries from a
    /// directory. These replace everything loaded before. A missing directory gives no texts.
    /// `reserved` is empty.
    void defaultSetup(const QString &messagesPath, const QString &language,
                      const QString &reserved);

    /// Adds the dictionaries of the chosen language from an add-on's directory, not from folders
    /// below it. `reserved` is empty.
    void findAndSetupAddOnsMessages(const QString &addOnMessagesPath, const QString &reserved);

    bool currentLanguageNeedsReversedLayout() const { return m_language.rightToLeft; }
    const VltLanguage &getCurrentLanguage() const { return m_language; }

    /// Text of a message key in the chosen language; null if no dictionary has the key.
    QString text(const QString &key) const { return m_texts.value(key); }

    /// The dictionaries that could not be read since defaultSetup(), with the reasons.
    const QList<vlt::Error> &skippedDictionaries() const { return m_skipped; }

private:
    VltLanguageManager() = default;
    void load(const QString &directory);

    VltLanguage m_language;
    vlt::language::Texts m_texts;
    QList<vlt::Error> m_skipped;
};

/// Text of a message key in the chosen language; `defaultText` (English, UTF-8) if no dictionary
/// has the key.
// NOLINTNEXTLINE(readability-identifier-naming): the language library's established name
QString dico_label(const char *key, const char *defaultText);
