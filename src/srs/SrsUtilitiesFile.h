#pragma once

#include "platform/IniFile.h"

namespace vlt::srs {

/// Path of VltSrsUtils.ini, even if the file does not exist.
QString srsUtilitiesPath();

/// VltSrsUtils.ini of the builder's installation, whose directory is the value INSTALL_DIR in the
/// builder's settings. An ini file without entries if it is missing or cannot be read.
platform::IniFile srsUtilitiesFile();

} // namespace vlt::srs
