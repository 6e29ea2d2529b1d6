#include "srs/DefaultSrsList.h"

#include "srs/SrsUtilitiesFile.h"

namespace vlt::srs {

DefaultSrsList::DefaultSrsList()
{
    const QString section = QStringLiteral("VltDefaultSrs");
    const platform::IniFile file = srsUtilitiesFile();
    for (int number = 1;; ++number) {
        SrsEntry entry;
        entry.code = file.value(section, QStringLiteral("SrsCode_%1").arg(number));
        if (entry.code.isEmpty())
            return;
        entry.alias = file.value(section, QStringLiteral("SrsShortName_%1").arg(number));
        entries().append(entry);
    }
}

} // namespace vlt::srs
