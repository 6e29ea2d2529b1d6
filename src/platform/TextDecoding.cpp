#include "platform/TextDecoding.h"

#include <QByteArrayView>
#include <QStringDecoder>

namespace vlt::platform {

QString decodeText(const QByteArray &bytes)
{
    QByteArrayView body(bytes);
    if (body.startsWith("\xEF\xBB\xBF"))
        body = body.sliced(3);

    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = utf8.decode(body);
    return utf8.hasError() ? QString::fromLatin1(body) : text;
}

} // namespace vlt::platform
