#include "geodata/ConfigurationOption.h"

#include <QFile>

#include <cpl_conv.h>

namespace vlt::geodata {

QString configurationOption(const char *name)
{
    return QFile::decodeName(CPLGetConfigOption(name, ""));
}

} // namespace vlt::geodata
