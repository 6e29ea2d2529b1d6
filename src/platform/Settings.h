#pragma once

#include <QSettings>
#include <QString>

#include <memory>

namespace vlt::platform {

/// The user's settings for an application of the organisation VELTARO, with the system-wide ones as
/// fallback.
std::unique_ptr<QSettings> userSettings(const QString &application);

/// The wizard's own settings, with keys "PageName/Key".
std::unique_ptr<QSettings> wizardSettings();

/// The settings shared with the builder: recent projects, install directory, lists of coordinate
/// systems.
std::unique_ptr<QSettings> builderSettings();

} // namespace vlt::platform
