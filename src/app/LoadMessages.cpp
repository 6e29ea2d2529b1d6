#include "app/LoadMessages.h"

#include "language/VltLanguageManager.h"
#include "language/VltTranslator.h"
#include "platform/Paths.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vlt::app {

void loadTexts(const QString &installDir, const QString &messagesDir, const QString &language)
{
    VltLanguageManager &manager = VltLanguageManager::getInstance();
    manager.defaultSetup(installDir + platform::separator(platform::nativePathStyle()) +
                             messagesDir,
                         language, QString());
    manager.findAndSetupAddOnsMessages(
        QFileInfo(installDir + QStringLiteral("/addons/telecom/MESSAGES")).absoluteFilePath(),
        QString());
}

void loadMessages(const QString &installDir, const QString &messagesDir, const QString &language)
{
    loadTexts(installDir, messagesDir, language);
    QCoreApplication::installTranslator(new VltTranslator(QCoreApplication::instance()));
}

} // namespace vlt::app
