#include "srs/SrsUtilitiesFile.h"

#include "platform/Settings.h"

#include <QSettings>

namespace vlt::srs {

QString srsUtilitiesPath()
{
    return platform::builderSettings()->value(QStringLiteral("INSTALL_DIR")).toString() +
           QStringLiteral("/VltSrsUtils.ini");
}

platform::IniFile srsUtilitiesFile()
{
    const auto file = platform::IniFile::open(srsUtilitiesPath());
    return file ? file.value() : platform::IniFile();
}

} // namespace vlt::srs
