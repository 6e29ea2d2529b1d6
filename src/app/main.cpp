#include "app/Environment.h"
#include "app/GeodataLibrary.h"
#include "app/LoadMessages.h"
#include "app/StartupSettings.h"
#include "app/StyleSheet.h"
#include "app/ToolkitTexts.h"
#include "language/VltLanguageManager.h"
#include "resources/Resources.h"
#include "wizard/base/BusyWait.h"
#include "wizard/frame/VltTelecomLayersWizard.h"

#include <QApplication>
#include <QDebug>
#include <QFileInfo>
#include <QLocale>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vlt;

bool asksForStyleSheet(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "-stylesheet") == 0)
            return true;
    }
    return false;
}

void setAppearance(QApplication &application, bool keepStyle)
{
    registerResources(); // the style sheets are among them
    if (!keepStyle)
        QApplication::setStyle(QStringLiteral("Fusion"));
    application.setStyleSheet(app::startupStyleSheet(application.styleSheet()));
}

void setIdentity()
{
    QApplication::setApplicationName(QStringLiteral("VltTelecomLayers"));
    QApplication::setApplicationVersion(QStringLiteral(VLT_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.veltaro.VltTelecomLayers"));
    QApplication::setWindowIcon(applicationIcon());
    // No display name: Qt would append it to the title of every window and box.
}

void setUpLanguage(const QString &installDir, const app::StartupSettings &settings)
{
    app::loadMessages(installDir, settings.messagesDir, settings.language);
    const VltLanguageManager &manager = VltLanguageManager::getInstance();
    app::installToolkitTexts(manager.getCurrentLanguage().text);
    // numbers and dates as the language of the texts writes them
    const QLocale spoken(manager.getCurrentLanguage().text);
    if (QLocale().language() != spoken.language())
        QLocale::setDefault(spoken);
    if (manager.currentLanguageNeedsReversedLayout())
        QApplication::setLayoutDirection(Qt::RightToLeft);
}

int runWizard(const QString &installDir)
{
    VltTelecomLayersWizard wizard(installDir,
                                  VltLanguageManager::getInstance().getCurrentLanguage().text);
    wizard.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const bool styleSheetGiven = asksForStyleSheet(argc, argv); // Qt takes the option away
    QApplication application(argc, argv);
    // The application object takes the whole of the user's locale; numbers keep the C one.
    std::setlocale(LC_NUMERIC, "C");
    setAppearance(application, styleSheetGiven);
    setIdentity();

    const app::StartupSettings settings =
        app::resolveStartupSettings(QCoreApplication::applicationFilePath(), true);
    const QString installDir = QFileInfo(settings.installDir).absoluteFilePath();
    setUpLanguage(installDir, settings);

    app::exportGeodataEnvironment(installDir, platform::nativePathStyle(), stdout);
    std::fflush(stdout);
    app::registerGeodataDrivers();

    const int result = runWizard(installDir);
    if (wizard::isWorkRunning()) { // a read that the user gave up; it would be torn apart below
        std::fflush(nullptr);
        std::_Exit(result);
    }
    for (const QString &line : app::listOpenDatasets())
        qDebug().noquote() << line;
    return result;
}
