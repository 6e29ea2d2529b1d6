#pragma once

#include "links/LinkRepresentation.h"
#include "platform/Result.h"

#include <QCommandLineParser>

namespace vlt::batch {

/// One option for each value of the link representation.
QList<QCommandLineOption> linkOptions();

/// The representation that the options describe; what is not given has its first-run value.
///
/// @par Errors   no key; which option has which wrong value.
Result<links::LinkRepresentation> readLinkOptions(const QCommandLineParser &parser);

} // namespace vlt::batch
