#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoCommand.h"
#include "batch/LinkCommand.h"
#include "batch/SiteCommand.h"
#include "batch/SnapshotCommand.h"

#include <QCoreApplication>
#include <QFile>

#include <clocale>

namespace {

using namespace vlt::batch;
using vlt::Result;

const QString Commands = QStringLiteral("\nCommands:\n"
                                        "  info TABLE                  what a table holds\n"
                                        "  site TABLE -o OUT.lay       make a layer of sites\n"
                                        "  link TABLE -o OUT.lay       make a layer of links\n"
                                        "  link TABLE --report         which links are free\n"
                                        "  snapshot LAYER -o OUT.png   make a picture of a layer\n"
                                        "'vltlayers COMMAND --help' tells the options of one.\n"
                                        "\nExamples:\n"
                                        "  vltlayers info sites.xlsx\n"
                                        "  vltlayers site sites.xlsx -o sites.lay\n"
                                        "  vltlayers link links.xlsx -o links.lay\n"
                                        "  vltlayers snapshot sites.lay -o sites.png\n");

ExitStatus runWithoutCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes layers of telecom tables for a 3D project."));
    parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."));
    addGlobalOptions(parser);
    const Result<GlobalOptions> options = parseArguments(parser, arguments, 0);
    if (const auto answered = answerHelp(parser, options, Commands))
        return *answered;
    return refuseUsage(QStringLiteral("no command given"));
}

ExitStatus run(const QStringList &arguments)
{
    const SplitArguments split = splitCommand(arguments);
    if (split.command == QLatin1String("info"))
        return runInfo(split.others);
    if (split.command == QLatin1String("site"))
        return runSite(split.others);
    if (split.command == QLatin1String("link"))
        return runLink(split.others);
    if (split.command == QLatin1String("snapshot"))
        return runSnapshot(split.others);
    if (split.command.isEmpty())
        return runWithoutCommand(split.others);
    return refuseUsage(QStringLiteral("no such command: ") + split.command);
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);

    const QCoreApplication application(argc, argv);
    // The application object takes the whole of the user's locale; numbers keep the C one.
    std::setlocale(LC_NUMERIC, "C");
    return static_cast<int>(run(arguments));
}
