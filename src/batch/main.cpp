#include "batch/BuildingsCommand.h"
#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoCommand.h"
#include "batch/LinkCommand.h"
#include "batch/SiteCommand.h"
#include "batch/SnapshotCommand.h"

#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <clocale>
#include <memory>

namespace {

using namespace vlt::batch;
using vlt::Result;

const QString Commands =
    QStringLiteral("\nCommands:\n"
                   "  info TABLE                  what a table holds\n"
                   "  site TABLE -o OUT.lay       make a layer of sites\n"
                   "  link TABLE -o OUT.lay       make a layer of links\n"
                   "  link TABLE --report         which links are free\n"
                   "  buildings FILE -o OUT.lay   make a layer of buildings\n"
                   "  snapshot LAYER -o OUT.png   make a picture of a layer\n"
                   "'vltlayers COMMAND --help' tells the options of one.\n"
                   "\nExamples:\n"
                   "  vltlayers info sites.xlsx\n"
                   "  vltlayers site sites.xlsx -o sites.lay\n"
                   "  vltlayers link links.xlsx -o links.lay\n"
                   "  vltlayers buildings town.shp --dtm hills.tif --image level.tif -o town.lay\n"
                   "  vltlayers snapshot sites.lay -o sites.png\n");

ExitStatus runWithoutCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes layers of telecom tables and of buildings for a 3D project."));
    parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."));
    addGlobalOptions(parser);
    const Result<GlobalOptions> options = parseArguments(parser, arguments, {});
    if (const auto answered = answerHelp(parser, options, Commands))
        return *answered;
    return refuseUsage(QStringLiteral("no command given"));
}

bool isBuildings(const SplitArguments &split)
{
    return split.command == QLatin1String("buildings");
}

ExitStatus run(const SplitArguments &split)
{
    if (split.command == QLatin1String("info"))
        return runInfo(split.others);
    if (split.command == QLatin1String("site"))
        return runSite(split.others);
    if (split.command == QLatin1String("link"))
        return runLink(split.others);
    if (isBuildings(split))
        return runBuildings(split.others);
    if (split.command == QLatin1String("snapshot"))
        return runSnapshot(split.others);
    if (split.command.isEmpty())
        return runWithoutCommand(split.others);
    return refuseUsage(QStringLiteral("no such command: ") + split.command);
}

/// The application object; with fonts where texts are drawn, which takes no display here.
std::unique_ptr<QCoreApplication> makeApplication(char **argv, bool withFonts)
{
    static int ownNameOnly = 1;
    if (!withFonts)
        return std::make_unique<QCoreApplication>(ownNameOnly, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // it complains of desktops that are none
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    auto application = std::make_unique<QGuiApplication>(ownNameOnly, argv);
    qInstallMessageHandler(usual);
    return application;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);

    const SplitArguments split = splitCommand(arguments);
    // what the wizard's log has is not for the terminal
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
    const auto application = makeApplication(argv, isBuildings(split));
    // The application object takes the whole of the user's locale; numbers keep the C one.
    std::setlocale(LC_NUMERIC, "C");
    return static_cast<int>(run(split));
}
