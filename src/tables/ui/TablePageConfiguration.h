#pragma once

#include "contract/TableKind.h"
#include "tables/ui/VltLayerPreview.h"

#include <QString>

namespace vlt::tables {

/// The differences between the pages for the kinds of tables.
struct TablePageConfiguration
{
    /// Object names of the page and of the widgets that choose its table.
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
    QString fileKey;        ///< key of the remembered table, below the prefix
    contract::TableKind kind = contract::TableKind::Sites;
    QString layerBaseName;      ///< of the temporary layer file
    bool looksAtMiddle = false; ///< whether the far view is centred on the middle
    double nearDistanceM = 0;   ///< distance of the camera from the demonstration in the near view
    double nearHeightM = 0;     ///< height of the point at the centre of the near view

    // texts in the chosen language
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
