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

Place settlePlace(const SplitArguments &arguments)
{
    const app::StartupSettings settings =
        app::resolveStartupSettings(QCoreApplication::applicationFilePath(), true);
    const bool isGiven = !arguments.installDir.isEmpty();
    Place place;
    place.installDir =
        QFileInfo(isGiven ? arguments.installDir : settings.installDir).absoluteFilePath();
    if (isGiven)
        qputenv("VLT_BIN_HOME", QFile::encodeName(place.installDir));
    app::loadMessages(place.installDir, settings.messagesDir,
                      arguments.language.isEmpty() ? settings.language : arguments.language);
    place.language = VltLanguageManager::getInstance().getCurrentLanguage().text;
    return place;
}

Result<Surroundings> startUp(const GlobalOptions &options)
{
    Surroundings surroundings;
    surroundings.installDir = options.place.installDir;
    surroundings.language = options.place.language;
    if (!QFileInfo(surroundings.installDir).isDir())
        return Error{QStringLiteral("MESS_CLI_NO_INSTALL_DIR"),
                     QStringLiteral("this install directory does not exist"),
                     surroundings.installDir};

    app::exportGeodataEnvironment(surroundings.installDir, platform::nativePathStyle(), nullptr);
    app::registerGeodataDrivers();

    if (options.projectPath.isEmpty())
        return surroundings;
    const Result<QString> terrain = project::terrainFile(options.projectPath);
    if (!terrain)
        return terrain.error();
    if (!options.quiet && project::namesNothing(options.projectPath))
        printError(explain(Error::asIs(project::namesNothingText(), options.projectPath)));
    surroundings.project = {options.projectPath, terrain.value()};
    return surroundings;
}

} // namespace vlt::batch
