#include "platform/Settings.h"

namespace vlt::platform {

std::unique_ptr<QSettings> userSettings(const QString &application)
{
    return std::make_unique<QSettings>(QStringLiteral("VELTARO"), application);
}

std::unique_ptr<QSettings> wizardSettings()
{
    return userSettings(QStringLiteral("VltTelecomLayers"));
}

std::unique_ptr<QSettings> builderSettings()
{
    return userSettings(QStringLiteral("Veltaro"));
}

} // namespace vlt::platform
