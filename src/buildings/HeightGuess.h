#pragma once

#include "contract/BuildingHeights.h"
#include "geodata/PolygonSource.h"

namespace vlt::buildings {

/// Index of the field that probably has the heights of the buildings: AGL, H, HEIGHT or COLOR, in
/// this order and in upper or lower case; else the second field, or the first if there is only one.
int guessedHeightField(const QList<geodata::VectorField> &fields);

/// Whether a field of this kind can be chosen from the list of height fields.
bool isOffered(geodata::FieldKind kind);

/// Whether the values of a field of this kind can be heights.
bool canHaveHeights(geodata::FieldKind kind);

/// Names of the fields that can have heights, in the order of the layer.
QStringList possibleHeightFields(const geodata::PolygonLayer &layer);

/// Name of the height field that is selected for a layer if the user names none; empty for none.
///
/// The guess counts all fields and selects among those that are offered. Fields of other kinds
/// before it therefore move the selection, and may leave none.
QString preselectedHeightField(const geodata::PolygonLayer &layer);

/// Name of a field that has the heights by its name, of any kind that can have heights; empty for
/// none, or if the name of the chosen field is one of those, too.
QString likelierHeightField(const geodata::PolygonLayer &layer, const QString &chosen);

/// Names of the fields that can have heights and whose names are those of heights or of numbers of
/// levels of whole buildings ("HEIGHT", "hauteur_max", "levels"), in the order of the layer.
QStringList fieldsNamedAsHeights(const geodata::PolygonLayer &layer);

/// The unit of a field of heights by the words in its name: levels ("building:levels",
/// "NB_ETAGES"), feet ("heightFt"), else metres.
contract::HeightUnit unitFromName(const QString &field);

} // namespace vlt::buildings
