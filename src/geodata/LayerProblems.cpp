#include "geodata/LayerProblems.h"

#include "geodata/TableDataset.h"
#include "platform/TextDecoding.h"

#include <cpl_string.h>

namespace vlt::geodata {

Problem parseProblem(const QString &item)
{
    const QLatin1Char bar('|');
    Problem problem;
    problem.row = item.section(bar, 0, 0).toInt();
    problem.column = item.section(bar, 1, 1);
    problem.severity = item.section(bar, 2, 2) == QLatin1String("Error")
                           ? Problem::Severity::Error
                           : Problem::Severity::Warning;
    problem.text = item.section(bar, 3);
    return problem;
}

Result<LayerProblems> readProblems(const QString &connection)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();

    LayerProblems problems;
    OGRLayer *layer = dataset.value()->GetLayer(0);
    char **items = layer ? layer->GetMetadata("problems") : nullptr;
    for (qsizetype n = 1;; ++n) {
        const QByteArray key = "PROBLEM_" + QByteArray::number(n);
        const char *item = CSLFetchNameValue(items, key.constData());
        if (!item)
            break;
        problems.listed << parseProblem(platform::decodeText(item));
    }
    const qint64 declared = QByteArray(CSLFetchNameValueDef(items, "COUNT", "0")).toLongLong();
    problems.count = qMax<qint64>(declared, problems.listed.size());
    return problems;
}

} // namespace vlt::geodata
