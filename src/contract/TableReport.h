#pragma once

/// The report of the table driver about every row of a table: the statements with which a program
/// gets it from a dataset, and the fields of the resulting layers.
namespace vlt::contract::report {

/// Statement of the layer with a feature for each row of the table, and of the table that completes
/// it.
inline constexpr char Statement[] = "REPORT";
inline constexpr char Table[] = "table";        ///< sheet, or file if it is another one
inline constexpr char Row[] = "row";            ///< number in the file, from 1
inline constexpr char Fate[] = "fate";          ///< one of the words below
inline constexpr char Site[] = "site";          ///< id or name of the site or link; may be empty
inline constexpr char FirstRow[] = "first_row"; ///< of the site or link; null if it is left out
/// List of texts: why the row is left out, or what was repaired or lost.
inline constexpr char Reasons[] = "reasons";
inline constexpr char Columns[] = "columns"; ///< list: the column of each reason, or nothing

// Fates.
inline constexpr char Used[] = "used";     ///< gives a site or a link
inline constexpr char Merged[] = "merged"; ///< adds to a site that begins in another row
inline constexpr char LeftOut[] = "left out";

/// Statement of the layer with the rows to be corrected as lines of delimited text, after the title
/// rows and the header: rows of the table that are left out, except sums and repeated headers.
inline constexpr char RejectsStatement[] = "REJECTS";
inline constexpr char Line[] = "line";
/// Item of the default domain: the encoding of the source, if it is a text.
inline constexpr char LineEncoding[] = "encoding";

// Metadata domain of layer 0 with the numbers of rows, ROWS = USED + MERGED + LEFT_OUT. The same
// with the prefix for the table that completes it, if there is one, with its name.
inline constexpr char RowsDomain[] = "rows";
inline constexpr char RowsItem[] = "ROWS";
inline constexpr char UsedItem[] = "USED";
inline constexpr char MergedItem[] = "MERGED";
inline constexpr char LeftOutItem[] = "LEFT_OUT";
inline constexpr char SecondPrefix[] = "SECOND_";
inline constexpr char NameItem[] = "NAME";

} // namespace vlt::contract::report
