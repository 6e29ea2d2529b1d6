#include "colormaps/OpenColorMap.h"

#include "geodata/ErrorCollector.h"

#include <QFile>

namespace vlt::colormaps {

Result<ColorMap> openColorMap(const QString &path, double minimum, double maximum)
{
    const geodata::ErrorCollector errors;
    ColorMap map;
    if (map.load(QFile::encodeName(path).toStdString(), minimum, maximum))
        return map;
    return Error{QStringLiteral("MESS_ERR_OPEN_CMAP"),
                 QStringLiteral("This file can't be read as a colormap"), path, errors.failure({})};
}

} // namespace vlt::colormaps
