#include "resources/Resources.h"

#include <QString>

// The macro declares the function of the generated file, which lies outside all namespaces.
static void initialise()
{
    Q_INIT_RESOURCE(VltTelecomLayers);
}

namespace vlt {

void registerResources()
{
    initialise();
}

QIcon applicationIcon()
{
    QIcon icon;
    for (const int width : {16, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/images/VltTelecomLayers-%1.png").arg(width));
    return icon;
}

} // namespace vlt
