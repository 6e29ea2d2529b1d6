#include "batch/InfoCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/StartUp.h"
#include "geodata/LayerProblems.h"

#include <QFileInfo>

namespace vlt::batch {

namespace {

const QString Examples =
    QStringLiteral("\nExamples:\n"
                   "  vltlayers info sites.xlsx\n"
                   "  vltlayers info --project city.gvw --json \"my sites.csv\"\n");

ExitStatus report(const QString &table, const GlobalOptions &options,
                  const Surroundings &surroundings)
{
    InfoReport info;
    info.file = sites::readSiteFileInfo(QFileInfo(table).absoluteFilePath(), surroundings.project);
    if (info.file.error)
        return refuse({info.file.error->key, info.file.error->text, table}, info.file.errorDetail);

    const QString connection = QStringLiteral("site:") + info.file.filePath;
    const Result<geodata::SiteCheck> check = geodata::readSiteCheck(connection, {});
    if (!check)
        return refuse({check.error().key, check.error().text, table});
    info.problems = check.value().problems;
    if (const auto nameless = sites::missingNameField(info.file)) {
        info.problems.listed.prepend(*nameless);
        ++info.problems.count;
    }
    if (!printOut(options.json ? reportJson(info) : reportText(info)))
        return refuse({QString(), QStringLiteral("the output cannot be written"), {}});
    return ExitStatus::Done;
}

} // namespace

ExitStatus runInfo(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Tells what a site table holds: format, unit, coordinate systems, recognised "
        "columns,\nand the rows that cannot be used."));
    parser.addPositionalArgument(QStringLiteral("TABLE"),
                                 QStringLiteral("Site table (.xls .xlsx .xml .csv)."),
                                 QStringLiteral("info TABLE"));
    addGlobalOptions(parser);
    const Result<GlobalOptions> options = parseArguments(parser, arguments, 1);
    if (const auto answered = answerHelp(parser, options, Examples))
        return *answered;

    const Result<Surroundings> surroundings = startUp(options.value());
    if (!surroundings)
        return refuse(surroundings.error());
    return report(parser.positionalArguments().constFirst(), options.value(), surroundings.value());
}

} // namespace vlt::batch
