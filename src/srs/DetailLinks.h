#pragma once

#include "srs/SrsEntry.h"

#include <QList>
#include <QString>
#include <QUrl>

namespace vlt::srs {

/// A web page with details of a coordinate system.
struct DetailLink
{
    QString text; ///< text of the menu entry
    QString url;  ///< template with "%1" for the code of the system
};

/// The links in the installation's ini file, in its order: "MenuEntry_n" and "Url_n" in the section
/// VltGetSrsDetail, n = 1, 2 ... The list ends at the first n without one of them.
QList<DetailLink> loadDetailLinks();

/// Address of the page for a system.
QUrl detailUrl(const DetailLink &link, const SrsEntry &entry);

} // namespace vlt::srs
