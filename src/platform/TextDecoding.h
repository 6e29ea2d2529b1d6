#pragma once

#include <QByteArray>
#include <QString>

namespace vlt::platform {

/// Text of 8-bit data whose encoding nobody states: UTF-8 where the whole of it is valid, else
/// Latin-1. A UTF-8 byte order mark at the start is skipped either way.
QString decodeText(const QByteArray &bytes);

} // namespace vlt::platform
