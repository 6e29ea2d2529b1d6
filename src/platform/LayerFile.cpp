#include "platform/LayerFile.h"

namespace vlt::platform {

Result<Done> writeLayerFile(const QString &path, const QString &text, Access access,
                            QString *reason)
{
    Result<Done> written = writeWhole(path, text.toUtf8(), access);
    if (written)
        return written;
    if (reason)
        *reason = written.error().text;
    return Error{QStringLiteral("MESS_CANT_CREATE_LAYER"),
                 QStringLiteral("Can't create the layer file"), path};
}

} // namespace vlt::platform
