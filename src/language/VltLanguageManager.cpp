#include "language/VltLanguageManager.h"

#include <QDir>

VltLanguageManager &VltLanguageManager::getInstance()
{
    static VltLanguageManager manager;
    return manager;
}

void VltLanguageManager::defaultSetup(const QString &messagesPath, const QString &language,
                                      const QString & /*reserved*/)
{
    m_language = VltLanguage::named(language);
    m_texts.clear();
    m_skipped.clear();
    load(messagesPath);
}

void VltLanguageManager::findAndSetupAddOnsMessages(const QString &addOnMessagesPath,
                                                    const QString & /*reserved*/)
{
    load(addOnMessagesPath);
}

void VltLanguageManager::load(const QString &directory)
{
    if (directory.isEmpty()) // QDir would use the working directory
        return;
    const QDir messages(directory);
    const QStringList names = messages.entryList({QStringLiteral("*_%1.ts").arg(m_language.text)},
                                                 QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const vlt::Result<vlt::language::Texts> texts =
            vlt::language::readDictionary(messages.absoluteFilePath(name));
        if (texts)
            m_texts.insert(texts.value());
        else
            m_skipped.append(texts.error());
    }
}

// NOLINTNEXTLINE(readability-identifier-naming): the language library's established name
QString dico_label(const char *key, const char *defaultText)
{
    const QString text = VltLanguageManager::getInstance().text(QString::fromUtf8(key));
    return text.isNull() ? QString::fromUtf8(defaultText) : text;
}
