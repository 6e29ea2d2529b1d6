#include "srs/SrsUtilitiesFile.h"

#include "platform/Settings.h"

#include <QSettings>

namespace vlt::srs {

platform::IniFile srsUtilitiesFile()
{
    const QString installDir =
        platform::builderSettings()->value(QStringLiteral("INSTALL_DIR")).toString();
    const auto file = platform::IniFile::open(installDir + QStringLiteral("/VltSrsUtils.ini"));
    return file ? file.value() : platform::IniFile();
}

} // namespace vlt::srs
