#include "geodata/Subdatasets.h"

#include "platform/TextDecoding.h"

#include <QFile>
#include <QRegularExpression>

#include <cpl_string.h>
#include <gdal_priv.h>

namespace vlt::geodata {

QList<Subdataset> subdatasets(GDALDataset &dataset)
{
    static const QRegularExpression name(QStringLiteral("\\ASUBDATASET_(\\d+)_NAME\\z"));
    char **texts = dataset.GetMetadata("SUBDATASETS");
    QList<Subdataset> found;
    for (char **text = texts; text && *text; ++text) {
        const QByteArray line(*text); // SUBDATASET_1_NAME=...
        const qsizetype equals = line.indexOf('=');
        const auto match = name.match(QString::fromUtf8(line.left(equals)));
        if (equals < 0 || !match.hasMatch())
            continue;
        const QByteArray key = "SUBDATASET_" + match.captured(1).toUtf8() + "_DESC";
        const char *description = CSLFetchNameValueDef(texts, key.constData(), "");
        found +=
            Subdataset{QFile::decodeName(line.mid(equals + 1)), platform::decodeText(description)};
    }
    return found;
}

} // namespace vlt::geodata
