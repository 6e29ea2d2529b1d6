#pragma once

#include "language/Dictionary.h"
#include "language/VltLanguage.h"
#include "platform/Result.h"

#include <QList>
#include <QString>

/// The texts of the user interface in the chosen language.
///
/// Set up once at start-up: defaultSetup(), then findAndSetupAddOnsMessages(). Afterwards it is
/// only read. Dictionaries are the files "<anything>_<code>.ts" of a directory, taken in the order
/// of their names; of a key that several give, the text read last holds, so an add-on can put its
/// own word for one of the builder's.
class VltLanguageManager
{
public:
    static VltLanguageManager &getInstance();

    /// Chooses the language (as VltLanguage::named() understands it) and loads its dictionaries
    /// from a directory, in place of everything loaded before. A directory that is missing gives no
    /// texts. `reserved` is empty.
    void defaultSetup(const QString &messagesPath, const QString &language,
                      const QString &reserved);

    /// Adds the dictionaries of the chosen language that lie in an add-on's directory itself.
    /// `reserved` is empty.
    void findAndSetupAddOnsMessages(const QString &addOnMessagesPath, const QString &reserved);

    bool currentLanguageNeedsReversedLayout() const { return m_language.rightToLeft; }
    const VltLanguage &getCurrentLanguage() const { return m_language; }

    /// Text of a message key in the chosen language; a null text where no dictionary has one.
    QString text(const QString &key) const { return m_texts.value(key); }

    /// The dictionaries that were passed over since defaultSetup(), and why.
    const QList<vlt::Error> &skippedDictionaries() const { return m_skipped; }

private:
    VltLanguageManager() = default;
    void load(const QString &directory);

    VltLanguage m_language;
    vlt::language::Texts m_texts;
    QList<vlt::Error> m_skipped;
};

/// Text of a message key in the chosen language, or the English text given with it (UTF-8).
// NOLINTNEXTLINE(readability-identifier-naming): the language library's established name
QString dico_label(const char *key, const char *defaultText);
