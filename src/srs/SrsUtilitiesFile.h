#pragma once

#include "platform/IniFile.h"

namespace vlt::srs {

/// Path of VltSrsUtils.ini, whether it is there or not.
QString srsUtilitiesPath();

/// VltSrsUtils.ini of the builder's installation, whose place is the value INSTALL_DIR of the
/// builder's settings; an ini file without entries where it is missing or unreadable.
platform::IniFile srsUtilitiesFile();

} // namespace vlt::srs
