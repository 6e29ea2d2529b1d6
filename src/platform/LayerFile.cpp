#include "platform/LayerFile.h"

namespace vlt::platform {

Result<Done> writeLayerFile(const QString &path, const QString &text, Access access)
{
    Result<Done> written = writeWhole(path, text.toUtf8(), access);
    if (!written)
        return cannotCreateLayer(path, written.error().detail);
    return written;
}

Error cannotCreateLayer(const QString &path, const QString &reason)
{
    return {QStringLiteral("MESS_CANT_CREATE_LAYER"), QStringLiteral("Can't create the layer file"),
            path, reason};
}

} // namespace vlt::platform
