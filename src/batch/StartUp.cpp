#include "batch/StartUp.h"

#include "app/Environment.h"
#include "app/GeodataLibrary.h"
#include "app/LoadMessages.h"
#include "batch/Console.h"
#include "language/VltLanguageManager.h"
#include "wizard/project/ProjectReaders.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vlt::batch {

Result<Surroundings> startUp(const GlobalOptions &options)
{
    const app::StartupSettings settings =
        app::resolveStartupSettings(QCoreApplication::applicationFilePath(), true);
    const QString chosen = options.installDir.isEmpty() ? settings.installDir : options.installDir;
    Surroundings surroundings;
    surroundings.installDir = QFileInfo(chosen).absoluteFilePath();
    if (!options.installDir.isEmpty())
        qputenv("VLT_BIN_HOME", QFile::encodeName(surroundings.installDir));
    app::loadMessages(surroundings.installDir, settings.messagesDir,
                      options.language.isEmpty() ? settings.language : options.language);
    surroundings.language = VltLanguageManager::getInstance().getCurrentLanguage().text;
    if (!QFileInfo(surroundings.installDir).isDir())
        return Error{QString(), QStringLiteral("no such install directory"),
                     surroundings.installDir};

    app::exportGeodataEnvironment(surroundings.installDir, platform::nativePathStyle(), nullptr);
    app::registerGeodataDrivers();

    if (options.projectPath.isEmpty())
        return surroundings;
    const Result<QString> terrain = project::terrainFile(options.projectPath);
    if (!terrain)
        return terrain.error();
    if (!options.quiet && project::namesNothing(options.projectPath))
        printError(explain({{}, project::namesNothingText(), options.projectPath}));
    surroundings.project = {options.projectPath, terrain.value()};
    return surroundings;
}

} // namespace vlt::batch
