#include "batch/RowOutputs.h"

#include "batch/OutputFiles.h"
#include "batch/ProgressLine.h"
#include "language/VltLanguageManager.h"
#include "tables/RowReport.h"

namespace vlt::batch {

namespace {

const QString Report = QStringLiteral("report");
const QString Rejects = QStringLiteral("rejects");

} // namespace

QList<QCommandLineOption> rowOutputOptions()
{
    return {{Report,
             dico_label("MESS_OPT_ROW_REPORT",
                        "Write a CSV file with the fate of every row (used, merged into a site, "
                        "left out) and the reasons; of one table."),
             QStringLiteral("FILE.csv")},
            {Rejects,
             dico_label("MESS_OPT_REJECTS",
                        "Write the rows that are left out, with the columns of the table, to be "
                        "corrected and opened again; of one table."),
             QStringLiteral("FILE")}};
}

Result<RowOutputs> readRowOutputs(const QCommandLineParser &parser)
{
    for (const QString &option : {Report, Rejects}) {
        const QString value = parser.value(option);
        if (parser.isSet(option) && (value.isEmpty() || isStandardOutput(value)))
            return wrongValue(option, dico_label("MESS_USE_FILE", "the name of a file"), value);
    }
    const RowOutputs outputs = {parser.value(Report), parser.value(Rejects)};
    if (!outputs.isEmpty() && parser.positionalArguments().size() > 1)
        return wrongUsage(dico_label("MESS_USE_ONE_TABLE_ROWS",
                                     "--report and --rejects can be used with one table only"));
    if (!outputs.report.isEmpty() && isOneOf(outputs.report, {outputs.rejects}))
        return wrongUsage(
            dico_label("MESS_USE_SAME_ROW_FILE", "--report and --rejects need different files"));
    return outputs;
}

std::optional<Error> checkRowOutputs(const RowOutputs &outputs, const QStringList &inputs)
{
    for (const QString &output : {outputs.report, outputs.rejects}) {
        if (!output.isEmpty() && isOneOf(output, inputs))
            return outputIsInput(output);
    }
    return std::nullopt;
}

Result<Done> writeRowOutputs(const RowOutputs &outputs, const QString &connection, bool quiet)
{
    ProgressLine line(dico_label("MESS_CLI_READING_ROWS", "Reading the rows"), !quiet);
    // The progress line never stops the work, so there is a value.
    if (!outputs.report.isEmpty()) {
        if (auto done = *tables::writeRowReport(connection, outputs.report, line.progress()); !done)
            return done;
    }
    if (!outputs.rejects.isEmpty())
        return *tables::writeRejects(connection, outputs.rejects, line.progress());
    return Done{};
}

} // namespace vlt::batch
