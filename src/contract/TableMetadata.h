#pragma once

/// The metadata of layers of tables: the table driver writes them, the wizard and the command line
/// read them.
namespace vlt::contract::metadata {

// Items of the default domain.
inline constexpr char Format[] = "format";     ///< kind of table: the program that wrote it
inline constexpr char Unit[] = "unit";         ///< of the coordinates
inline constexpr char Epsg[] = "epsg";         ///< system that the table declares; may be empty
inline constexpr char Encoding[] = "encoding"; ///< of a text file
inline constexpr char HeaderRows[] = "header_rows"; ///< rows with names: "2,3"; empty for none

// Values of Unit.
inline constexpr char Meters[] = "METERS";
inline constexpr char Dms[] = "DMS";         ///< degrees, minutes and seconds
inline constexpr char Degrees[] = "DEGREES"; ///< decimal degrees

// The domain of problems has an item with their number, and an item with a number in its name for
// each problem that is listed: PROBLEM_1=row|column|severity|text.
inline constexpr char ProblemsDomain[] = "problems";
inline constexpr char ProblemCount[] = "COUNT";
inline constexpr char ProblemPrefix[] = "PROBLEM_";
inline constexpr char ProblemSeparator = '|';
inline constexpr char ErrorSeverity[] = "Error";
inline constexpr char WarningSeverity[] = "Warning";

// The domain of mistakes in positions has an item with their number, and an item for each:
// FINDING_1=kind|cure|text. Where corrections of positions are the cure, CORRECTION_1 has them, see
// PositionCorrection.h.
inline constexpr char DoctorDomain[] = "doctor";
inline constexpr char FindingCount[] = "COUNT";
inline constexpr char FindingPrefix[] = "FINDING_";
inline constexpr char FindingSeparator = '|';
inline constexpr char CorrectionPrefix[] = "CORRECTION_";

// The domain of systems, of tables in metres: EPSG codes, separated by blanks.
inline constexpr char SystemsDomain[] = "systems";
inline constexpr char NamedSystems[] = "NAMED"; ///< those that the table names in words
inline constexpr char KnownSystems[] = "KNOWN"; ///< all that have a name in the vocabulary

// The domain of roles says how the columns were understood: the shape of the table in words, and an
// item for each column that has a role, ROLE_1=role|number of the transmitter or
// nothing|column|why.
inline constexpr char RolesDomain[] = "roles";
inline constexpr char ShapeItem[] = "SHAPE";
inline constexpr char RolePrefix[] = "ROLE_";
inline constexpr char RoleSeparator = '|';
// The same of the table that completes it, with its name: that of the sheet or file.
inline constexpr char SecondNameItem[] = "SECOND_NAME";
inline constexpr char SecondRolePrefix[] = "SECOND_ROLE_";
inline constexpr char MappingItem[] = "MAPPING"; ///< path of the mapping file in use; else absent

/// The domain with the text of a mapping file that states all that is recognised and all that the
/// mapping file in use states. Its only item is a JSON object, see ColumnMapping.h.
inline constexpr char MappingDomain[] = "json:MAPPING";

/// Open option: a table without a header, or links without positions, are opened as well. Such
/// links have no layers; the dataset has the domain of roles.
inline constexpr char OverviewOption[] = "OVERVIEW";

/// The domain of the dataset with the first rows of the table. Its only item is a JSON object:
/// {"sheet": name, "sheets": [names], "headerRows": [numbers], "furtherRows": [numbers],
/// "columns": [{"name": field, "position": n}], "rows": [{"row": number, "cells": [texts]}]}.
/// Only workbooks have sheets; further rows belong to the header, such as a row of units; positions
/// count from 0, rows from 1; empty cells at the end of a row are left out.
inline constexpr char ExcerptDomain[] = "json:EXCERPT";
namespace excerpt {
inline constexpr char Sheet[] = "sheet";
inline constexpr char Sheets[] = "sheets";
inline constexpr char HeaderRows[] = "headerRows";
inline constexpr char FurtherRows[] = "furtherRows";
inline constexpr char Columns[] = "columns";
inline constexpr char Name[] = "name";
inline constexpr char Position[] = "position";
inline constexpr char Rows[] = "rows";
inline constexpr char Row[] = "row";
inline constexpr char Cells[] = "cells";
} // namespace excerpt

} // namespace vlt::contract::metadata
