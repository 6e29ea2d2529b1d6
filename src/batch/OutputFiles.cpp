#include "batch/OutputFiles.h"

namespace vlt::batch {

bool isOneOf(const QString &output, const QStringList &inputs)
{
    return !isStandardOutput(output) && platform::isOneOf(output, inputs);
}

bool isStandardOutput(const QString &output)
{
    return output == QLatin1String("-");
}

} // namespace vlt::batch
