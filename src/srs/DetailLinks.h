#pragma once

#include "srs/SrsEntry.h"

#include <QList>
#include <QString>
#include <QUrl>

namespace vlt::srs {

/// A page that tells more about a coordinate system.
struct DetailLink
{
    QString text; ///< of the menu entry
    QString url;  ///< template: "%1" stands for the system's code
};

/// The links of the installation's ini file, in its order: "MenuEntry_n" and "Url_n" of section
/// VltGetSrsDetail, n = 1, 2 ... The first n that lacks either ends the list.
QList<DetailLink> loadDetailLinks();

/// Address of the page about a system.
QUrl detailUrl(const DetailLink &link, const SrsEntry &entry);

} // namespace vlt::srs
