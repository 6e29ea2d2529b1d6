#pragma once

#include <QString>

namespace vlt::snapshot {

/// A line that the readers of building layers and documents gave (a notice, the reason of a
/// refusal, why a file of theirs cannot be used) in the user's language: "FILE: 3 of 277 buildings
/// are left out: ...". The file in front and names stay as they are. Any other line comes back as
/// it is.
QString sceneNoticeText(const QString &english);

} // namespace vlt::snapshot
