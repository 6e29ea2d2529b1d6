#pragma once

#include <QSettings>
#include <QString>

#include <memory>

namespace vlt::platform {

/// The per-user settings of organisation VELTARO and the given application, with the system-wide
/// ones as fallback.
std::unique_ptr<QSettings> userSettings(const QString &application);

/// What the wizard remembers for itself, keys "PageName/Key".
std::unique_ptr<QSettings> wizardSettings();

/// What is shared with the builder: recent projects, install directory, lists of coordinate
/// systems.
std::unique_ptr<QSettings> builderSettings();

} // namespace vlt::platform
