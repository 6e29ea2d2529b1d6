#include "batch/Help.h"

#include "batch/Console.h"

namespace vlt::batch {

namespace {

const QString ExitText = QStringLiteral(
    "\nExit status: 0 done, 1 an input was refused (nothing is written), 2 wrong usage.\n");

ExitStatus answer(const QString &text)
{
    return printOut(text) ? ExitStatus::Done : ExitStatus::Refused;
}

} // namespace

std::optional<ExitStatus> answerHelp(const QCommandLineParser &parser,
                                     const Result<GlobalOptions> &options, const QString &examples)
{
    if (!options)
        return refuseUsage(options.error().text);
    if (parser.isSet(QStringLiteral("help")))
        return answer(parser.helpText() + examples + ExitText);
    if (parser.isSet(QStringLiteral("version")))
        return answer(QStringLiteral("vltlayers " VLT_VERSION "\n"));
    return std::nullopt;
}

ExitStatus refuseUsage(const QString &text)
{
    printError(oneLine(text));
    printError(QStringLiteral("try 'vltlayers --help'"));
    return ExitStatus::WrongUsage;
}

} // namespace vlt::batch
