#include "platform/InputFiles.h"

#include <QFileInfo>

namespace vlt::platform {

namespace {

/// The path of a file without links.
QString realPath(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

} // namespace

bool isOneOf(const QString &output, const QStringList &inputs)
{
    for (const QString &input : inputs) {
        if (!input.isEmpty() && realPath(input) == realPath(output))
            return true;
    }
    return false;
}

Error outputIsInput(const QString &output)
{
    return {QStringLiteral("MESS_CLI_OUTPUT_IS_INPUT"),
            QStringLiteral("the output is one of the input files"), output};
}

} // namespace vlt::platform
