#pragma once

#include "batch/CommandLine.h"
#include "sites/SiteRepresentation.h"

#include <QCommandLineParser>

namespace vlt::batch {

/// One option for each value of the site representation.
QList<QCommandLineOption> siteOptions();

/// The catalogues that --sector-colors and --pylon-type choose from, for the help.
QString catalogueLists(const Place &place);

/// The representation that the options describe; what is not given has its first-run value.
///
/// Pylon types are named by type, both catalogues' entries by their number, from 1, or by their
/// description in any language; letters in any case.
///
/// @par Errors   no key; which option has which wrong value.
Result<sites::SiteRepresentation> readSiteOptions(const QCommandLineParser &parser,
                                                  const sites::SiteCatalogues &catalogues);

/// Checks the numbers apart from the catalogues, which are known only after start-up.
Result<sites::SiteRepresentation> readSiteNumbers(const QCommandLineParser &parser);

} // namespace vlt::batch
