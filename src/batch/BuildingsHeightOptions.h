#pragma once

#include "contract/BuildingHeights.h"
#include "geodata/PolygonSource.h"
#include "platform/Result.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QStringList>

namespace vlt::batch {

/// The heights of buildings as the command line states them.
struct HeightChoice
{
    contract::BuildingHeights heights; ///< with names of fields as given
    bool hasUnit = false;              ///< the unit is stated; else the field's name suggests it
    bool hasElseUnit = false;          ///< the same for the second field
    bool hasReference = false;         ///< it is stated whether heights are above ground or sea
    QString where;                     ///< condition for the features; empty for all
};

/// The options for heights and for the choice of features.
QList<QCommandLineOption> heightOptions();

/// @par Errors  no key; the text names the option with a wrong value or without the option that it
///              needs.
Result<HeightChoice> readHeightOptions(const QCommandLineParser &parser);

/// The name of a field of the layer that can have heights, given in any case of letters.
///
/// @par Errors  in the language in use, with the fields and the path
Result<QString> findHeightField(const geodata::PolygonLayer &layer, const QString &wanted,
                                const QString &path);

/// The heights with the layer's names of fields and with the units that these names suggest.
///
/// @param warnings  receives one for each unit that is suggested by a name
/// @par Errors      those of findHeightField()
Result<contract::BuildingHeights> heightsOf(const HeightChoice &choice,
                                            const geodata::PolygonLayer &layer,
                                            const QString &heightField, const QString &path,
                                            QStringList &warnings);

} // namespace vlt::batch
