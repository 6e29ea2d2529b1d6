#pragma once

#include <QByteArray>
#include <QString>

namespace vlt::platform {

/// Text of 8-bit data in an unknown encoding: UTF-8 if all of it is valid UTF-8, else Latin-1. A
/// UTF-8 byte order mark at the start is skipped in both cases.
QString decodeText(const QByteArray &bytes);

} // namespace vlt::platform
