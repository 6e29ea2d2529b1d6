#pragma once

#include "platform/Result.h"

#include <QList>
#include <QMap>
#include <QStringList>

namespace vlt::geodata {

/// What the driver takes a column of a table for.
struct ColumnRole
{
    QString role;   ///< as in the vocabulary: siteId, azimuth ...
    QString sector; ///< number of the transmitter in the name of the column; empty for none
    QString column;
    QString evidence; ///< why, in English
};

/// The columns of a table that completes another one.
struct SecondColumns
{
    QString table; ///< name of the sheet or file; empty if there is none
    QList<ColumnRole> roles;
};

/// Properties of a layer, without its features.
struct LayerInfo
{
    bool present = false; ///< whether the dataset has a layer of the requested index
    QString layerName;
    qint64 featureCount = 0;
    QStringList fields;              ///< in the layer's order, decoded from UTF-8 or else Latin-1
    QMap<QString, QString> metadata; ///< default domain; keys in lower case
    QString shape;           ///< of the table, in English; empty if the driver does not say it
    QList<ColumnRole> roles; ///< of the columns that have one
    SecondColumns second;    ///< of the table that completes it
};

/// Opens a table connection and reads the layer of index `layerIndex` (from 0). A dataset without
/// that layer gives a value whose `present` is false.
///
/// @par Errors   the driver's reason as detail.
Result<LayerInfo> readLayerInfo(const QString &connection, int layerIndex);

/// The names of the layer's fields only: cheaper, because nothing is counted. Empty for a missing
/// layer.
///
/// @par Errors   as above.
Result<QStringList> readFieldNames(const QString &connection, int layerIndex);

} // namespace vlt::geodata
