#include "app/Environment.h"

#include "contract/Installation.h"

#include <QFile>
#include <QFileInfo>

namespace vlt::app {

EnvironmentValues geodataEnvironment(const QString &installDir, platform::PathStyle style,
                                     const QByteArray &previousPath,
                                     const std::function<bool(const QString &)> &directoryExists)
{
    const auto below = [&](const QByteArray &path) {
        return installDir + platform::withSeparators(QLatin1Char('/') + QLatin1String(path), style);
    };
    const QChar listMark = platform::listSeparator(style);

    QByteArray path = QFile::encodeName(installDir);
    // in a POSIX list, an empty last entry would mean the working directory
    if (!previousPath.isEmpty() || style == platform::PathStyle::Windows)
        path += QString(listMark).toLatin1() + previousPath;
    const QByteArray drivers =
        QFile::encodeName(below(contract::PluginFolder) + listMark +
                          below(contract::PluginFolder + QByteArray("/qt4")));

    EnvironmentValues values = {{"PATH", path},
                                {"GDAL_DRIVER_PATH", drivers},
                                {"OGR_DRIVER_PATH", drivers},
                                {"GDAL_FILENAME_IS_UTF8", "NO"},
                                {"SHAPE_ENCODING", ""}};
    if (directoryExists(below("share/gdal")))
        values.emplace_back("GDAL_DATA", QFile::encodeName(below("share/gdal")));
    if (directoryExists(below("share/proj")))
        values.emplace_back("PROJ_LIB", QFile::encodeName(below("share/proj")));
    return values;
}

void exportGeodataEnvironment(const QString &installDir, platform::PathStyle style,
                              std::FILE *trace)
{
    const auto isDirectory = [](const QString &path) { return QFileInfo(path).isDir(); };
    for (const auto &[name, value] :
         geodataEnvironment(installDir, style, qgetenv("PATH"), isDirectory)) {
        if (name == "GDAL_DRIVER_PATH" && trace != nullptr)
            std::fprintf(trace, "Adding path (%s) to GDAL/OGR Driver path\n", value.constData());
        qputenv(name.constData(), value);
    }
}

} // namespace vlt::app
