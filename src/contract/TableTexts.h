#pragma once

#include "contract/TextPatterns.h"

#include <array>

namespace vlt::contract {

/// The messages of the table readers.
inline constexpr auto TableTexts = std::to_array<Text>({
    // files that cannot be read
    {"MESS_TAB_NO_FILE_NAME", "no file name is given"},
    {"MESS_TAB_NOT_LOCAL", "tables are read from local files only"},
    {"MESS_TAB_NO_READER", "no driver for it was found"},
    {"MESS_TAB_OUT_OF_MEMORY", "out of memory"},
    {"MESS_TAB_FOLDER", "this is a folder, not a file"},
    {"MESS_TAB_DEVICE", "this is not a regular file"},
    {"MESS_TAB_NO_FILE", "the file does not exist"},
    {"MESS_TAB_NO_PERMISSION", "the file cannot be read: Permission denied"},
    {"MESS_TAB_UNREADABLE", "the file cannot be read: %1"},
    {"MESS_TAB_FILE_CHANGED", "the file has changed while it was read"},

    // files of another kind
    {"MESS_TAB_EMPTY_FILE", "the file is empty"},
    {"MESS_TAB_BLANK_FILE", "the file holds only white space"},
    {"MESS_TAB_BINARY_FILE", "this is neither a text nor a workbook"},
    {"MESS_TAB_ENCODING", "the encoding \"%1\" is not known"},
    {"MESS_TAB_PDF", "this is a PDF document, not a table"},
    {"MESS_TAB_JSON", "this is JSON, not a table"},
    {"MESS_TAB_SYLK", "this is a SYLK file: save it as .xlsx or .csv"},
    {"MESS_TAB_WEB_PAGE", "this is a web page, not a workbook: save it as .xlsx or .csv"},
    {"MESS_TAB_OPEN_DOCUMENT", "this is an OpenDocument file: save it as .xlsx or .csv"},
    {"MESS_TAB_XLSB", "this is a binary workbook (.xlsb): save it as .xlsx"},
    {"MESS_TAB_OLD_WORKBOOK", "this workbook is older than Excel 5: save it as .xlsx"},
    {"MESS_TAB_ARCHIVE", "this is an archive, but not a workbook (.xlsx)"},
    {"MESS_TAB_OFFICE_DOCUMENT", "this is an office document, but not a workbook (.xls)"},
    {"MESS_TAB_OTHER_XML",
     "this XML file is not a SpreadsheetML 2003 workbook: its root element is <%1>"},
    {"MESS_TAB_DOCUMENT_TYPE",
     "the XML file declares a document type: tables do not need it, and attacks use it"},
    {"MESS_TAB_PASSWORD", "the workbook is protected by a password"},

    // damaged files
    {"MESS_TAB_FILE_CUT", "the file is cut short"},
    {"MESS_TAB_FILE_CUT_IN_ROW", "the file is cut short in row %1"},
    {"MESS_TAB_SHEET_CUT", "the file is cut short: the sheet does not end"},
    {"MESS_TAB_WORKBOOK_CUT", "the workbook is cut short"},
    {"MESS_TAB_WORKBOOK_DAMAGED", "the workbook is damaged or cut short"},
    {"MESS_TAB_NO_DIRECTORY", "the workbook is cut short: its directory is missing"},
    {"MESS_TAB_DIRECTORY_DAMAGED", "the directory of the workbook is damaged"},
    {"MESS_TAB_PART_MISPLACED", "the workbook is damaged: a part is not where the directory says"},
    {"MESS_TAB_SHEET_MISPLACED", "the workbook is damaged: a sheet is not where it should be"},
    {"MESS_TAB_TEXTS_CUT", "the workbook is damaged: its texts are cut short"},
    {"MESS_TAB_NO_PART", "the workbook lacks its part %1"},
    {"MESS_TAB_PART_TOO_LARGE", "a part of the workbook is too large"},
    {"MESS_TAB_COMPRESSION", "the compression method of the workbook is not supported"},
    {"MESS_TAB_DATA_DAMAGED", "the compressed data of the workbook are damaged"},
    {"MESS_TAB_DATA_CUT", "the compressed data of the workbook are cut short"},
    {"MESS_TAB_CHECK_SUM", "the compressed data of the workbook do not match their checksum"},
    {"MESS_TAB_NO_ROOT_ELEMENT", "the XML file has no root element"},
    {"MESS_TAB_LONG_TAG", "a tag or comment in the XML is too long"},
    {"MESS_TAB_LONG_ROW", "a single row is longer than 256 MiB"},

    // files that hold no table of sites
    {"MESS_TAB_NO_DELIMITER", "no delimiter was found: semicolons, tabs, bars and commas do not "
                              "separate columns in this file"},
    {"MESS_TAB_NO_SHEET", "there is no sheet called \"%1\""},
    {"MESS_TAB_NO_VALUE", "there is no cell with a value in the file"},
    {"MESS_TAB_FILE_OF_ONE_COLUMN", "the file has only one column"},
    {"MESS_TAB_TABLE_OF_ONE_COLUMN", "the table has only one column"},
    {"MESS_TAB_NO_HEADER", "no header was found: none of the first rows names its columns"},
    {"MESS_TAB_NO_ROW", "there is a header in row %1, but no row below it"},

    // tables that hold no links
    {"MESS_TAB_SITES_NOT_LINKS", "this is a table of sites, not of links: it has the coordinates "
                                 "of one position per row (%1), not those of two ends"},
    {"MESS_TAB_ENDS_ONLY_NAMED",
     "the ends of the links are only named (%1; %2): their positions must stand in a table of "
     "sites, on another sheet of the workbook or in the file that SITES (--sites) names"},
    {"MESS_TAB_NO_ENDS", "no columns with coordinates of both ends were recognized"},
    {"MESS_TAB_NO_END_X", "no columns with coordinates of both ends were recognized: the longitude "
                          "or easting of end %1 is missing"},
    {"MESS_TAB_NO_END_Y", "no columns with coordinates of both ends were recognized: the latitude "
                          "or northing of end %1 is missing"},
    {"MESS_TAB_ONE_END",
     "no columns with coordinates of both ends were recognized: those of end %1 are missing"},

    // coordinate systems
    {"MESS_TAB_UNKNOWN_SRS", "the coordinate system \"%1\" is not known"},
    {"MESS_TAB_NOT_HORIZONTAL", "the coordinate system \"%1\" is vertical or geocentric: it has "
                                "no horizontal coordinates"},
    {"MESS_TAB_NO_WAY", "there is no transformation from the coordinate system \"%1\" to \"%2\""},
    {"MESS_TAB_UNKNOWN_EPSG",
     "the file declares the coordinate system EPSG:%1, which is not known"},
    {"MESS_TAB_NO_SOURCE_SRS",
     "the coordinate system of the file is not known: its coordinates are taken as they are"},
    {"MESS_TAB_BAD_EXTENT", "the area \"%1\" is not west, south, east and north in degrees"},
    {"MESS_TAB_OUTSIDE_TARGET",
     "the position lies outside the area of the target coordinate system"},

    // rows that cannot be read in full
    {"MESS_TAB_FURTHER_PROBLEMS",
     "further problems are listed in the layer's metadata domain \"problems\""},
    {"MESS_TAB_ENCODING_GUESSED",
     "the file does not declare its encoding: its texts are read as %1"},
    {"MESS_TAB_NO_COORDINATES", "no columns with coordinates were recognized"},
    {"MESS_TAB_UTM_NORTH",
     "the zones of UTM have no letter: they are taken as those of the northern hemisphere"},
    {"MESS_TAB_UTM_SOUTH", "the zones of UTM have no letter: because of their northings, they are "
                           "taken as those of the southern hemisphere"},
    {"MESS_TAB_GRID", "the column \"%1\" holds positions in the %2 grid, which are not read"},
    {"MESS_TAB_LOST_DECIMALS", "the whole numbers in the columns \"%1\" and \"%2\" are read as "
                               "degrees after division by %3"},
    {"MESS_TAB_DATUMS", "the column \"%1\" names several datums (%2): all positions are read as "
                        "those of EPSG:%3"},
    {"MESS_TAB_NORTH_X", "\"%1\" is read as northing and \"%2\" as easting, as in EPSG:%3: the "
                         "positions could also be read the other way round"},
    {"MESS_TAB_KNOWN_TABLE",
     "the table has no header: its columns are taken as those of \"%1\" (%2)"},
    {"MESS_TAB_COLUMNS_BY_VALUES",
     "the table has no header: its columns are taken by their values (%1)"},
    {"MESS_TAB_HIDDEN_ROWS",
     "hidden rows are read like all others: %1 of them, the first of which is row %2",
     {ValueKind::Count, ValueKind::Count}},
    {"MESS_TAB_TOTAL_ROW", "a row of sums is left out"},
    {"MESS_TAB_REPEATED_HEADER", "the row repeats the header"},
    {"MESS_TAB_SITE_UNPLACED", "the site \"%1\" has no position"},
    {"MESS_TAB_CORRECTED", "repaired: the position \"%1\" is corrected to %2"},
    {"MESS_TAB_READ_AS", "the coordinate \"%1\" is read as %2"},
    {"MESS_TAB_READ_O", "the letter O in the coordinate \"%1\" is read as %2"},
    {"MESS_TAB_BEHIND_LAST",
     "the row continues after the last column: \"%1\" in column %2 has no header"},
    {"MESS_TAB_MISSING_TEXT",
     "the text of the cell is lost: the workbook has no text number \"%1\""},
    {"MESS_TAB_SWALLOWED_ROWS", "a quotation mark opens here and its text includes the rows below, "
                                "%1 in number: a quotation mark is missing or superfluous"},
    {"MESS_TAB_UNREADABLE_BYTES",
     "bytes that are not valid in the encoding %1 were replaced: %2 in this row"},
    {"MESS_TAB_TEXT_CUT", "the text is too long: only its first characters are kept, %1 in number"},
    {"MESS_TAB_ZEROS", "zero bytes inside the text were taken out"},
    {"MESS_TAB_LOST_VALUE", "the value \"%1\" is lost: the column holds numbers"},
    {"MESS_TAB_DIGITS_LOST",
     "the value \"%1\" is read as a number: digits that a name needs are lost"},

    // sites that cannot be read in full
    {"MESS_TAB_UNUSED_AZIMUTHS",
     "the azimuths in column \"%1\" are not used: the sectors have those in column \"%2\""},
    {"MESS_TAB_UNFIT_AZIMUTHS",
     "the values in column \"%1\" are no azimuths in degrees: they are not used"},
    {"MESS_TAB_WHOLE_DEGREES", "the coordinates in columns \"%1\" and \"%2\" are whole degrees: "
                               "their minutes and seconds may be missing"},
    {"MESS_TAB_OTHER_SHEETS", "only the sheet \"%1\" is read: other sheets hold tables with the "
                              "same columns (%2)"},
    {"MESS_TAB_UPWARD_TILTS",
     "all tilts in column \"%1\" are negative: the antennas point upwards"},

    // links that cannot be read in full
    {"MESS_TAB_NO_HEIGHTS", "no columns with antenna heights above ground were recognized"},
    {"MESS_TAB_SEA_LEVEL",
     "the heights in column \"%1\" are above sea level, not above ground: they are not used"},
    {"MESS_TAB_NO_FREQUENCIES", "no column with frequencies was recognized"},
    {"MESS_TAB_DIAMETERS", "the dishes are drawn with the size that the layer states, not with the "
                           "diameters in the table (%1)"},
    {"MESS_TAB_REPEATERS", "passive repeaters are not drawn: each link is a straight line between "
                           "its ends (%1)"},
    {"MESS_TAB_LENGTH_UNREADABLE", "the stated length \"%1\" cannot be read"},
    {"MESS_TAB_NO_HEIGHT", "the antenna height is empty"},
    {"MESS_TAB_HEIGHT_UNREADABLE", "the antenna height \"%1\" cannot be read"},
    {"MESS_TAB_NO_FREQUENCY", "the frequency is empty"},
    {"MESS_TAB_FREQUENCY_UNREADABLE", "the frequency \"%1\" cannot be read"},
    {"MESS_TAB_FREQUENCY_NOT_POSITIVE", "the frequency \"%1\" is not positive"},
    {"MESS_TAB_AZIMUTH_UNREADABLE",
     "the azimuth \"%1\" cannot be read: it is computed from the ends"},
    {"MESS_TAB_TILT_UNREADABLE", "the tilt \"%1\" cannot be read"},
    {"MESS_TAB_OFFSET_UNREADABLE",
     "the offset \"%1\" cannot be read: the position is taken without it"},
    {"MESS_TAB_ENDS_COINCIDE", "the ends of the link are less than a meter apart"},
    {"MESS_TAB_LENGTH_DIFFERS",
     "the stated length of %1 m does not match the distance between the ends, which is %2 m"},
    {"MESS_TAB_AZIMUTH_DIFFERS",
     "the stated azimuth of %1 degrees does not point to the other end, which lies at %2 degrees"},

    // values of transmitters that cannot be read
    {"MESS_TAB_HEIGHT_RANGE", "the antenna height \"%1\" cannot be used: an antenna height lies "
                              "between 0 and 2000 m above ground"},
    {"MESS_TAB_TILT_RANGE",
     "the tilt \"%1\" cannot be used: a tilt lies between -90 and 90 degrees"},

    // coordinates that cannot be read
    {"MESS_TAB_NO_COORDINATE", "the coordinate is empty"},
    {"MESS_TAB_PART_EMPTY", "the coordinate \"%1\" cannot be read: it is empty"},
    {"MESS_TAB_NOT_A_NUMBER", "the coordinate \"%1\" cannot be read: it is not a number"},
    {"MESS_TAB_WITHOUT_NUMBER", "the coordinate \"%1\" cannot be read: it holds no number"},
    {"MESS_TAB_NOT_FINITE", "the coordinate \"%1\" cannot be read: it is not finite"},
    {"MESS_TAB_NOT_AN_ANGLE", "the coordinate \"%1\" cannot be read: it is not an angle"},
    {"MESS_TAB_NOT_A_POSITION", "the coordinate \"%1\" cannot be read: it is not a position"},
    {"MESS_TAB_NOT_UTM", "the coordinate \"%1\" cannot be read: a position in a zone of UTM has an "
                         "easting from 100 000 to 900 000 m and a northing up to 10 000 000 m"},
    {"MESS_TAB_NO_ZONE", "the zone \"%1\" cannot be used: UTM has the zones 1 to 60, with a letter "
                         "for the band or the hemisphere"},
    {"MESS_TAB_FRACTION", "the coordinate \"%1\" cannot be read: only the last of degrees, "
                          "minutes and seconds may have a fraction"},
    {"MESS_TAB_BELOW_60",
     "the coordinate \"%1\" cannot be read: minutes and seconds must lie below 60"},
    {"MESS_TAB_MANY_PARTS",
     "the coordinate \"%1\" cannot be read: it has more than degrees, minutes and seconds"},
    {"MESS_TAB_SIGN_AND_LETTER",
     "the coordinate \"%1\" cannot be read: it has both a minus sign and a hemisphere letter"},
    {"MESS_TAB_TWO_LETTERS", "the coordinate \"%1\" cannot be read: it has two hemisphere letters"},
    {"MESS_TAB_NO_HEMISPHERE",
     "the coordinate \"%1\" cannot be read: it has a letter that is not a hemisphere"},
    {"MESS_TAB_OTHER_AXIS", "the coordinate \"%1\" cannot be read: the hemisphere letter belongs "
                            "to the other coordinate"},
    {"MESS_TAB_LETTER_O", "the coordinate \"%1\" cannot be read: the letter O may mean west "
                          "(Ouest, Oeste) or east (Ost): use W or E"},
    {"MESS_TAB_OUTSIDE_GLOBE", "the coordinate \"%1\" cannot be read: it lies outside the globe"},
    {"MESS_TAB_LONGITUDE",
     "the coordinate \"%1\" cannot be read: a longitude lies between -180 and 180"},
    {"MESS_TAB_LATITUDE",
     "the coordinate \"%1\" cannot be read: a latitude lies between -90 and 90"},
    {"MESS_TAB_NO_VOCABULARY",
     "the installation is not complete: its vocabulary of column names is missing"},
    {"MESS_TAB_BAD_VOCABULARY", "the vocabulary %1 cannot be read: %2"},

    // mapping files
    {"MESS_TAB_MAPPING_UNUSED",
     "the mapping file \"%1\" is not used: %2",
     {ValueKind::Name, ValueKind::Nested}},
    {"MESS_TAB_MAPPING_ROLES", "the mapping file \"%1\" names roles that are not known: %2"},
    {"MESS_TAB_MAPPING_COLUMNS", "the mapping file \"%1\" names columns that the table does not "
                                 "have, so that their roles are recognized: %2"},
    {"MESS_TAB_MAPPING_TWICE",
     "the mapping file \"%1\" names columns more than once, of which only "
     "the first role holds: %2"},
    {"MESS_TAB_MAPPING_HEADER", "the mapping file \"%1\" names header rows that the table does not "
                                "have: the header is recognized"},
    {"MESS_TAB_MAPPING_SHEET", "the mapping file \"%1\" names the sheet \"%2\", which the workbook "
                               "does not have: the sheet is recognized"},
    {"MESS_TAB_MAPPING_KIND", "it is for tables of the other kind"},
    {"MESS_TAB_MAPPING_LARGE", "a mapping file has at most 4 MiB"},
    {"MESS_TAB_MAPPING_JSON", "its JSON is not valid in line %1"},
    {"MESS_TAB_MAPPING_NONE", "it is not a mapping of columns"},
    {"MESS_TAB_MAPPING_VERSION", "its version %1 is not known"},
    {"MESS_TAB_MAPPING_KEY", "its entry \"%1\" is not known"},
    {"MESS_TAB_MAPPING_VALUE", "its entry \"%1\" has a value that cannot be used"},

    // transmitters of sites
    {"MESS_TAB_SECTOR_HEIGHT",
     "the antenna height \"%1\" cannot be used: the transmitter is left out"},
    {"MESS_TAB_SECTOR_AZIMUTH", "the azimuth \"%1\" cannot be used: the transmitter is left out"},
    {"MESS_TAB_SECTOR_TILT", "the tilt \"%1\" cannot be used: the transmitter is left out"},
    {"MESS_TAB_SECTOR_BEAM_WIDTH",
     "the beam width \"%1\" cannot be used: the transmitter is left out"},
    {"MESS_TAB_UNKNOWN_UNIT", "the unit \"%1\" is not known: the height is not used"},
    {"MESS_TAB_LIST_LENGTH", "the list \"%1\" has %2 values for %3 transmitters: none of them is "
                             "used"},
    {"MESS_TAB_REPEATED_CELL",
     "the cell stands in a row above with the same values: it is drawn once"},
    {"MESS_TAB_SITE_ELSEWHERE", "the site \"%1\" lies %2 m away in row %3: this row makes a site "
                                "of its own"},

    // shapes of tables
    {"MESS_TAB_SHAPE_ROWS", "%1 rows, each of them a site"},
    {"MESS_TAB_SHAPE_NUMBERED", "%1 rows, each of them a site with up to %2 transmitters"},
    {"MESS_TAB_SHAPE_LISTS", "%1 rows, each of them a site with up to %2 transmitters in lists"},
    {"MESS_TAB_SHAPE_TALL",
     "%1 rows: %2 sites with %3 transmitters each, grouped by \"%4\" and position"},
    {"MESS_TAB_SHAPE_JOINED", "%1 rows: %2 sites with %3 transmitters each from another table"},
    {"MESS_TAB_SHAPE_PLACES", "%1 rows: %2 sites with %3 transmitters each, grouped by position"},

    {"MESS_TAB_SHAPE_LINKS", "%1 rows, each of them a link with both ends"},
    {"MESS_TAB_SHAPE_NAMED_LINKS", "%1 rows, each of them a link between sites of another table"},

    // tables that belong together
    {"MESS_TAB_IN_SHEET", "in the sheet \"%1\": %2", {ValueKind::Name, ValueKind::Nested}},
    {"MESS_TAB_IN_FILE", "in the file \"%1\": %2", {ValueKind::Name, ValueKind::Nested}},
    {"MESS_TAB_SECOND_FILE",
     "the file \"%1\" cannot be used: %2",
     {ValueKind::Name, ValueKind::Nested}},
    {"MESS_TAB_NO_SECTORS", "no columns of transmitters with the ids or names of these sites were "
                            "recognized"},
    {"MESS_TAB_SECTORS_NOT_USED", "the table has transmitters of its own: those in the file "
                                  "\"%1\" are not used"},
    {"MESS_TAB_NO_NAMED_SITES", "no sites with a position and an id or a name were recognized"},
    {"MESS_TAB_NO_END_SITES", "the columns of the links name none of its sites"},
    {"MESS_TAB_END_SITES_NOT_USED", "the links have the positions of their ends: the sites in the "
                                    "file \"%1\" are not used"},
    {"MESS_TAB_END_NOT_NAMED", "the end is not named"},
    {"MESS_TAB_END_UNKNOWN", "the site \"%1\" is not in the table of sites: the end has no "
                             "position"},
    {"MESS_TAB_END_UNPLACED", "the site \"%1\" has no position in the table of sites"},
    {"MESS_TAB_END_AMBIGUOUS", "the name \"%1\" stands for several places in the table of sites: "
                               "the end has no position"},
    {"MESS_TAB_NO_SUCH_SITE", "the site \"%1\" is not in the table of sites: the transmitter is "
                              "left out"},
    {"MESS_TAB_NO_SITE_NAMED", "the transmitter names no site: it is left out"},
    {"MESS_TAB_BARE_SITES", "sites without a transmitter: %1", {ValueKind::Count}},

    // why a column has a role
    {"MESS_TAB_EVIDENCE_STATED", "stated in %1"},
    {"MESS_TAB_EVIDENCE_NO_HEADER", "no header; recognized by the values"},
    {"MESS_TAB_EVIDENCE_UNIT",
     "%1; unit by the positions: %2",
     {ValueKind::Nested, ValueKind::Name}},
    {"MESS_TAB_EVIDENCE_EMPTY", "header \"%1\"; no values"},
    {"MESS_TAB_EVIDENCE_TEXTS", "header \"%1\"; %2 values, %3 of them different"},
    {"MESS_TAB_EVIDENCE_WHOLE", "header \"%1\"; %2 whole numbers from %3 to %4"},
    {"MESS_TAB_EVIDENCE_NUMBERS", "header \"%1\"; %2 numbers from %3 to %4"},
    {"MESS_TAB_EVIDENCE_LISTS", "header \"%1\"; %2 lists of numbers from %3 to %4"},

    // positions of a table as a whole
    {"MESS_TAB_DOCTOR_SWAPPED_GLOBE", "longitude and latitude seem to be exchanged: %1 of %2 "
                                      "latitudes lie beyond 90 degrees"},
    {"MESS_TAB_DOCTOR_SWAPPED",
     "the coordinates seem to be exchanged: in the other order, %1 of "
     "%2 positions lie in %3",
     {ValueKind::Count, ValueKind::Count, ValueKind::Nested}},
    {"MESS_TAB_DOCTOR_SWAPPED_ROWS",
     "coordinates seem to be exchanged in some rows: in the other "
     "order, they lie among the others (%1 of %2 positions, rows: %3)"},
    {"MESS_TAB_DOCTOR_SIGN",
     "a sign seems to be lost in %1: with the opposite one, %2 of %3 "
     "positions lie in %4",
     {ValueKind::Nested, ValueKind::Count, ValueKind::Count, ValueKind::Nested}},
    {"MESS_TAB_DOCTOR_SIGN_ROWS",
     "a sign seems to be lost in some rows of %1: with the opposite "
     "one, they lie among the others (%2 of %3 positions, rows: %4)",
     {ValueKind::Nested}},
    {"MESS_TAB_DOCTOR_DECIMAL",
     "the decimal mark seems to be misplaced in %1: times %2, %3 of %4 "
     "positions lie in %5",
     {ValueKind::Nested, ValueKind::Name, ValueKind::Count, ValueKind::Count, ValueKind::Nested}},
    {"MESS_TAB_DOCTOR_DECIMAL_ROWS",
     "the decimal mark seems to be misplaced in some rows of %1: with another one, they lie "
     "among the others (%2 of %3 positions, rows: %4)",
     {ValueKind::Nested}},
    {"MESS_TAB_DOCTOR_THOUSANDS",
     "a separator of thousands seems to be read as the decimal mark "
     "in %1: at all %2 positions they lie below 1000 and have up to "
     "three decimals",
     {ValueKind::Nested, ValueKind::Count}},
    {"MESS_TAB_DOCTOR_NOT_DEGREES", "the coordinates of %1 of %2 positions are too large for "
                                    "degrees, but the coordinate system counts in degrees"},
    {"MESS_TAB_DOCTOR_NOT_METERS", "the coordinates of %1 of %2 positions seem to be degrees, but "
                                   "the coordinate system counts in meters or feet"},
    {"MESS_TAB_DOCTOR_UNDECLARED",
     "the coordinates are in meters, but the table declares no coordinate system"},
    {"MESS_TAB_DOCTOR_OUTLIER", "far from all others: %1 of %2 positions, more than %3 km from "
                                "the middle of the table (rows: %4)"},
    {"MESS_TAB_DOCTOR_DUPLICATE",
     "site ids occur more than once: %1 of %2 sites share theirs (rows: %3)"},
    {"MESS_TAB_DOCTOR_STACKED", "many positions are the same point: %1 of %2 are %3 (rows: %4)"},
    {"MESS_TAB_DOCTOR_OUTSIDE", "outside the project's terrain: %1 of %2 positions (rows: %3)"},
    {"MESS_TAB_DOCTOR_TERRAIN", "the area of the project's terrain"},
    {"MESS_TAB_DOCTOR_AREA", "the area of use of the coordinate system"},
    {"MESS_TAB_DOCTOR_LONGITUDES", "the longitudes"},
    {"MESS_TAB_DOCTOR_LATITUDES", "the latitudes"},
    {"MESS_TAB_DOCTOR_EASTINGS", "the eastings"},
    {"MESS_TAB_DOCTOR_NORTHINGS", "the northings"},
    {"MESS_TAB_DOCTOR_COORDINATES", "both coordinates"},

    {"MESS_TAB_ZERO_ZERO",
     "the coordinate \"%1\" cannot be read: 0, 0 stands for an unknown position"},
});

using TableTextId = TextIdOf<TableTexts>;

/// The English text with the values in place of its placeholders.
inline std::string formatted(TableTextId id, std::initializer_list<std::string_view> values = {})
{
    return formatted(id.text(), values);
}

} // namespace vlt::contract
