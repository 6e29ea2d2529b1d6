#pragma once

#include "links/LinkRepresentation.h"
#include "platform/Result.h"

#include <QCommandLineParser>

namespace vlt::batch {

/// One option for each value of the link representation.
QList<QCommandLineOption> linkOptions();

/// The representation of the options; options that are not given have their first-run values.
///
/// @par Errors   no key; the text names the option and its wrong value.
Result<links::LinkRepresentation> readLinkOptions(const QCommandLineParser &parser);

} // namespace vlt::batch
