#include "app/CommandLine.h"
#include "app/DisplayGuard.h"
#include "app/Environment.h"
#include "app/GeodataLibrary.h"
#include "app/LoadMessages.h"
#include "app/ReadablePalette.h"
#include "app/StartupSettings.h"
#include "app/StyleSheet.h"
#include "app/ToolkitTexts.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"
#include "resources/Resources.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/ElidedCombos.h"
#include "wizard/base/RestingCursor.h"
#include "wizard/frame/VltTelecomLayersWizard.h"

#include <QApplication>
#include <QDebug>
#include <QFileInfo>
#include <QLocale>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

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

/// The arguments without the name of the program.
QStringList textsOf(int argc, char **argv)
{
    QStringList texts;
    for (int i = 1; i < argc; ++i)
        texts << QString::fromLocal8Bit(argv[i]);
    return texts;
}

void setAppearance(QApplication &application, bool keepStyle)
{
    registerResources(); // they include the style sheets
    if (!keepStyle)
        QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(app::readableHints(QApplication::palette()));
    application.setStyleSheet(app::startupStyleSheet(application.styleSheet()));
    wizard::restTextCursors(&application);
    wizard::elideCombos(&application);
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
    // numbers and dates in the format of the language of the texts
    QLocale::setDefault(language::numberLocale());
    if (manager.currentLanguageNeedsReversedLayout())
        QApplication::setLayoutDirection(Qt::RightToLeft);
}

void print(std::FILE *to, const QString &line)
{
    std::fprintf(to, "%s\n", line.toLocal8Bit().constData());
}

/// Prints the help or the version without opening a window.
int printText(int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const app::StartupSettings settings =
        app::resolveStartupSettings(QCoreApplication::applicationFilePath(), true);
    app::loadTexts(settings.installDir, settings.messagesDir, settings.language);
    const app::CommandLine line = app::readCommandLine(QCoreApplication::arguments().mid(1));
    print(stdout, line.action == app::CommandLine::Action::Version
                      ? QStringLiteral("VltTelecomLayers " VLT_VERSION)
                      : app::helpText());
    return 0;
}

/// @param reason  given by the toolkit; may be empty
QString noDisplayText(const QString &reason)
{
    const app::StartupSettings settings =
        app::resolveStartupSettings(QCoreApplication::applicationFilePath(), true);
    app::loadTexts(settings.installDir, settings.messagesDir, settings.language);
    const QString detail = reason.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(reason);
    return QStringLiteral("VltTelecomLayers: ") +
           dico_label("MESS_APP_NO_DISPLAY",
                      "no window can be opened here%1; vltlayers makes the same layers without one")
               .arg(detail);
}

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
    const app::DisplayGuard guard(noDisplayText);
    return std::make_unique<QApplication>(argc, argv);
}

int refuse(const QString &error)
{
    print(stderr, QStringLiteral("VltTelecomLayers: ") + error);
    print(stderr, dico_label("MESS_APP_TRY_HELP", "try 'VltTelecomLayers --help'"));
    return 2;
}

/// @param file  to open; empty for none
int runWizard(const QString &installDir, const QString &file)
{
    VltTelecomLayersWizard wizard(installDir,
                                  VltLanguageManager::getInstance().getCurrentLanguage().text);
    wizard.show();
    if (!file.isEmpty())
        QTimer::singleShot(0, &wizard, [&wizard, file] { wizard.openFile(file); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    if (app::asksForText(textsOf(argc, argv)))
        return printText(argc, argv);
    const bool styleSheetGiven = asksForStyleSheet(argc, argv); // Qt removes the option
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    // The application object sets the user's locale for the process; numbers need that of C.
    std::setlocale(LC_NUMERIC, "C");
    setAppearance(*application, styleSheetGiven);
    setIdentity();

    const app::StartupSettings settings =
        app::resolveStartupSettings(QCoreApplication::applicationFilePath(), true);
    const QString installDir = QFileInfo(settings.installDir).absoluteFilePath();
    setUpLanguage(installDir, settings);
    const app::CommandLine line = app::readCommandLine(QCoreApplication::arguments().mid(1));
    if (!line.error.isEmpty())
        return refuse(line.error);

    app::exportGeodataEnvironment(installDir, platform::nativePathStyle(), stdout);
    std::fflush(stdout);
    app::registerGeodataDrivers();

    const int result = runWizard(installDir, line.file);
    if (wizard::isWorkRunning()) { // a cancelled read still uses what is destroyed below
        std::fflush(nullptr);
        std::_Exit(result);
    }
    for (const QString &dataset : app::listOpenDatasets())
        qDebug().noquote() << dataset;
    return result;
}
