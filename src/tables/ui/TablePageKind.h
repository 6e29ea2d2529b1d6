#pragma once

#include "contract/TableKind.h"
#include "tables/ui/VltLayerPreview.h"

#include <QString>

namespace vlt::tables {

/// What tells the page for one kind of table from that for another.
struct TablePageKind
{
    /// Object names of the page and of the widgets by which its table is chosen.
    struct ObjectNames
    {
        QString page;
        QString group;
        QString label;
        QString line;
        QString button;
    };

    ObjectNames objectNames;
    QString settingsPrefix; ///< of the remembered values
    QString fileKey;        ///< under which the table is remembered, below the prefix
    contract::TableKind kind = contract::TableKind::Sites;
    QString layerBaseName;      ///< of the temporary layer file
    bool looksAtMiddle = false; ///< of the demonstration from afar, instead of at its origin
    double nearDistanceM = 0;   ///< of the camera from the demonstration, for the near view
    double nearHeightM = 0;     ///< what it looks at

    // words in the chosen language
    QString title;
    QString fileGroup;
    QString fileLabel;
    QString noFile;
    QString selectFile; ///< caption of the file dialog
    QString files;      ///< name of the dialog's filter
    QString reading;
    QString dragText;
    QString dragName;
    VltLayerPreview::OwnLayer ownLayer;
};

} // namespace vlt::tables
