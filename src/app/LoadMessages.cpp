#include "app/LoadMessages.h"

#include "contract/Installation.h"
#include "language/VltLanguageManager.h"
#include "language/VltTranslator.h"
#include "platform/Paths.h"

#include <QCoreApplication>
#include <QDir>

namespace vlt::app {

void loadTexts(const QString &installDir, const QString &messagesDir, const QString &language)
{
    VltLanguageManager &manager = VltLanguageManager::getInstance();
    manager.defaultSetup(installDir + platform::separator(platform::nativePathStyle()) +
                             messagesDir,
                         language, QString());
    manager.findAndSetupAddOnsMessages(
        QDir(installDir).absoluteFilePath(QLatin1String(contract::LayerMessageFolder)), QString());
}

void loadMessages(const QString &installDir, const QString &messagesDir, const QString &language)
{
    loadTexts(installDir, messagesDir, language);
    QCoreApplication::installTranslator(new VltTranslator(QCoreApplication::instance()));
}

} // namespace vlt::app
