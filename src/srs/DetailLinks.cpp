#include "srs/DetailLinks.h"

#include "srs/SrsUtilitiesFile.h"

namespace vlt::srs {

QList<DetailLink> loadDetailLinks()
{
    const QString section = QStringLiteral("VltGetSrsDetail");
    const platform::IniFile file = srsUtilitiesFile();
    QList<DetailLink> links;
    for (int number = 1;; ++number) {
        const DetailLink link{file.value(section, QStringLiteral("MenuEntry_%1").arg(number)),
                              file.value(section, QStringLiteral("Url_%1").arg(number))};
        if (link.text.isEmpty() || link.url.isEmpty())
            return links;
        links.append(link);
    }
}

QUrl detailUrl(const DetailLink &link, const SrsEntry &entry)
{
    return QUrl(QString(link.url).replace(QLatin1String("%1"), entry.code));
}

} // namespace vlt::srs
