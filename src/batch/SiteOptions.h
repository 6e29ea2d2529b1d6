#pragma once

#include "batch/CommandLine.h"
#include "sites/SiteRepresentation.h"

#include <QCommandLineParser>

namespace vlt::batch {

/// One option for each value of the site representation.
QList<QCommandLineOption> siteOptions();

/// The entries of the catalogues for --sector-colors and --pylon-type, for the help.
QString catalogueLists(const Place &place);

/// The representation of the options; options that are not given have their first-run values.
///
/// A pylon type is given by its type, and an entry of either catalogue by its number, from 1, or by
/// its description in any language, in upper or lower case.
///
/// @par Errors   no key; the text names the option and its wrong value.
Result<sites::SiteRepresentation> readSiteOptions(const QCommandLineParser &parser,
                                                  const sites::SiteCatalogues &catalogues);

/// Reads and checks only the numbers: the catalogues are known only after start-up.
Result<sites::SiteRepresentation> readSiteNumbers(const QCommandLineParser &parser);

} // namespace vlt::batch
