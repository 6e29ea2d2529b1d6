<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Site tables</name>
    <message id="MESS_TAB_NO_FILE_NAME">
        <source>no file name is given</source>
        <translation>no file name is given</translation>
    </message>
    <message id="MESS_TAB_NOT_LOCAL">
        <source>tables are read from local files only</source>
        <translation>tables are read from local files only</translation>
    </message>
    <message id="MESS_TAB_NO_READER">
        <source>no driver for it was found</source>
        <translation>no driver for it was found</translation>
    </message>
    <message id="MESS_TAB_OUT_OF_MEMORY">
        <source>out of memory</source>
        <translation>out of memory</translation>
    </message>
    <message id="MESS_TAB_FOLDER">
        <source>this is a folder, not a file</source>
        <translation>this is a folder, not a file</translation>
    </message>
    <message id="MESS_TAB_DEVICE">
        <source>this is not a regular file</source>
        <translation>this is not a regular file</translation>
    </message>
    <message id="MESS_TAB_NO_FILE">
        <source>the file does not exist</source>
        <translation>the file does not exist</translation>
    </message>
    <message id="MESS_TAB_NO_PERMISSION">
        <source>the file cannot be read: Permission denied</source>
        <translation>the file cannot be read: Permission denied</translation>
    </message>
    <message id="MESS_TAB_UNREADABLE">
        <source>the file cannot be read: %1</source>
        <translation>the file cannot be read: %1</translation>
    </message>
    <message id="MESS_TAB_FILE_CHANGED">
        <source>the file has changed while it was read</source>
        <translation>the file has changed while it was read</translation>
    </message>
    <message id="MESS_TAB_EMPTY_FILE">
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message id="MESS_TAB_BLANK_FILE">
        <source>the file holds only white space</source>
        <translation>the file holds only white space</translation>
    </message>
    <message id="MESS_TAB_BINARY_FILE">
        <source>this is neither a text nor a workbook</source>
        <translation>this is neither a text nor a workbook</translation>
    </message>
    <message id="MESS_TAB_ENCODING">
        <source>the encoding "%1" is not known</source>
        <translation>the encoding "%1" is not known</translation>
    </message>
    <message id="MESS_TAB_PDF">
        <source>this is a PDF document, not a table</source>
        <translation>this is a PDF document, not a table</translation>
    </message>
    <message id="MESS_TAB_JSON">
        <source>this is JSON, not a table</source>
        <translation>this is JSON, not a table</translation>
    </message>
    <message id="MESS_TAB_SYLK">
        <source>this is a SYLK file: save it as .xlsx or .csv</source>
        <translation>this is a SYLK file: save it as .xlsx or .csv</translation>
    </message>
    <message id="MESS_TAB_WEB_PAGE">
        <source>this is a web page, not a workbook: save it as .xlsx or .csv</source>
        <translation>this is a web page, not a workbook: save it as .xlsx or .csv</translation>
    </message>
    <message id="MESS_TAB_OPEN_DOCUMENT">
        <source>this is an OpenDocument file: save it as .xlsx or .csv</source>
        <translation>this is an OpenDocument file: save it as .xlsx or .csv</translation>
    </message>
    <message id="MESS_TAB_XLSB">
        <source>this is a binary workbook (.xlsb): save it as .xlsx</source>
        <translation>this is a binary workbook (.xlsb): save it as .xlsx</translation>
    </message>
    <message id="MESS_TAB_OLD_WORKBOOK">
        <source>this workbook is older than Excel 5: save it as .xlsx</source>
        <translation>this workbook is older than Excel 5: save it as .xlsx</translation>
    </message>
    <message id="MESS_TAB_ARCHIVE">
        <source>this is an archive, but not a workbook (.xlsx)</source>
        <translation>this is an archive, but not a workbook (.xlsx)</translation>
    </message>
    <message id="MESS_TAB_OFFICE_DOCUMENT">
        <source>this is an office document, but not a workbook (.xls)</source>
        <translation>this is an office document, but not a workbook (.xls)</translation>
    </message>
    <message id="MESS_TAB_OTHER_XML">
        <source>this XML file is not a SpreadsheetML 2003 workbook: its root element is &lt;%1&gt;</source>
        <translation>this XML file is not a SpreadsheetML 2003 workbook: its root element is &lt;%1&gt;</translation>
    </message>
    <message id="MESS_TAB_DOCUMENT_TYPE">
        <source>the XML file declares a document type: tables do not need it, and attacks use it</source>
        <translation>the XML file declares a document type: tables do not need it, and attacks use it</translation>
    </message>
    <message id="MESS_TAB_PASSWORD">
        <source>the workbook is protected by a password</source>
        <translation>the workbook is protected by a password</translation>
    </message>
    <message id="MESS_TAB_FILE_CUT">
        <source>the file is cut short</source>
        <translation>the file is cut short</translation>
    </message>
    <message id="MESS_TAB_FILE_CUT_IN_ROW">
        <source>the file is cut short in row %1</source>
        <translation>the file is cut short in row %1</translation>
    </message>
    <message id="MESS_TAB_SHEET_CUT">
        <source>the file is cut short: the sheet does not end</source>
        <translation>the file is cut short: the sheet does not end</translation>
    </message>
    <message id="MESS_TAB_WORKBOOK_CUT">
        <source>the workbook is cut short</source>
        <translation>the workbook is cut short</translation>
    </message>
    <message id="MESS_TAB_WORKBOOK_DAMAGED">
        <source>the workbook is damaged or cut short</source>
        <translation>the workbook is damaged or cut short</translation>
    </message>
    <message id="MESS_TAB_NO_DIRECTORY">
        <source>the workbook is cut short: its directory is missing</source>
        <translation>the workbook is cut short: its directory is missing</translation>
    </message>
    <message id="MESS_TAB_DIRECTORY_DAMAGED">
        <source>the directory of the workbook is damaged</source>
        <translation>the directory of the workbook is damaged</translation>
    </message>
    <message id="MESS_TAB_PART_MISPLACED">
        <source>the workbook is damaged: a part is not where the directory says</source>
        <translation>the workbook is damaged: a part is not where the directory says</translation>
    </message>
    <message id="MESS_TAB_SHEET_MISPLACED">
        <source>the workbook is damaged: a sheet is not where it should be</source>
        <translation>the workbook is damaged: a sheet is not where it should be</translation>
    </message>
    <message id="MESS_TAB_TEXTS_CUT">
        <source>the workbook is damaged: its texts are cut short</source>
        <translation>the workbook is damaged: its texts are cut short</translation>
    </message>
    <message id="MESS_TAB_NO_PART">
        <source>the workbook lacks its part %1</source>
        <translation>the workbook lacks its part %1</translation>
    </message>
    <message id="MESS_TAB_PART_TOO_LARGE">
        <source>a part of the workbook is too large</source>
        <translation>a part of the workbook is too large</translation>
    </message>
    <message id="MESS_TAB_COMPRESSION">
        <source>the compression method of the workbook is not supported</source>
        <translation>the compression method of the workbook is not supported</translation>
    </message>
    <message id="MESS_TAB_DATA_DAMAGED">
        <source>the compressed data of the workbook are damaged</source>
        <translation>the compressed data of the workbook are damaged</translation>
    </message>
    <message id="MESS_TAB_DATA_CUT">
        <source>the compressed data of the workbook are cut short</source>
        <translation>the compressed data of the workbook are cut short</translation>
    </message>
    <message id="MESS_TAB_CHECK_SUM">
        <source>the compressed data of the workbook do not match their checksum</source>
        <translation>the compressed data of the workbook do not match their checksum</translation>
    </message>
    <message id="MESS_TAB_NO_ROOT_ELEMENT">
        <source>the XML file has no root element</source>
        <translation>the XML file has no root element</translation>
    </message>
    <message id="MESS_TAB_LONG_TAG">
        <source>a tag or comment in the XML is too long</source>
        <translation>a tag or comment in the XML is too long</translation>
    </message>
    <message id="MESS_TAB_LONG_ROW">
        <source>a single row is longer than 256 MiB</source>
        <translation>a single row is longer than 256 MiB</translation>
    </message>
    <message id="MESS_TAB_NO_DELIMITER">
        <source>no delimiter was found: semicolons, tabs, bars and commas do not separate columns in this file</source>
        <translation>no delimiter was found: semicolons, tabs, bars and commas do not separate columns in this file</translation>
    </message>
    <message id="MESS_TAB_NO_SHEET">
        <source>there is no sheet called "%1"</source>
        <translation>there is no sheet called "%1"</translation>
    </message>
    <message id="MESS_TAB_NO_VALUE">
        <source>there is no cell with a value in the file</source>
        <translation>there is no cell with a value in the file</translation>
    </message>
    <message id="MESS_TAB_FILE_OF_ONE_COLUMN">
        <source>the file has only one column</source>
        <translation>the file has only one column</translation>
    </message>
    <message id="MESS_TAB_TABLE_OF_ONE_COLUMN">
        <source>the table has only one column</source>
        <translation>the table has only one column</translation>
    </message>
    <message id="MESS_TAB_NO_HEADER">
        <source>no header was found: none of the first rows names its columns</source>
        <translation>no header was found: none of the first rows names its columns</translation>
    </message>
    <message id="MESS_TAB_NO_ROW">
        <source>there is a header in row %1, but no row below it</source>
        <translation>there is a header in row %1, but no row below it</translation>
    </message>
    <message id="MESS_TAB_SITES_NOT_LINKS">
        <source>this is a table of sites, not of links: it has the coordinates of one position per row (%1), not those of two ends</source>
        <translation>this is a table of sites, not of links: it has the coordinates of one position per row (%1), not those of two ends</translation>
    </message>
    <message id="MESS_TAB_NO_ENDS">
        <source>no columns with coordinates of both ends were recognized</source>
        <translation>no columns with coordinates of both ends were recognized</translation>
    </message>
    <message id="MESS_TAB_ONE_END">
        <source>no columns with coordinates of both ends were recognized: those of end %1 are missing</source>
        <translation>no columns with coordinates of both ends were recognized: those of end %1 are missing</translation>
    </message>
    <message id="MESS_TAB_UNKNOWN_SRS">
        <source>the coordinate system "%1" is not known</source>
        <translation>the coordinate system "%1" is not known</translation>
    </message>
    <message id="MESS_TAB_NOT_HORIZONTAL">
        <source>the coordinate system "%1" is vertical or geocentric: it has no horizontal coordinates</source>
        <translation>the coordinate system "%1" is vertical or geocentric: it has no horizontal coordinates</translation>
    </message>
    <message id="MESS_TAB_NO_WAY">
        <source>there is no transformation from the coordinate system "%1" to "%2"</source>
        <translation>there is no transformation from the coordinate system "%1" to "%2"</translation>
    </message>
    <message id="MESS_TAB_UNKNOWN_EPSG">
        <source>the file declares the coordinate system EPSG:%1, which is not known</source>
        <translation>the file declares the coordinate system EPSG:%1, which is not known</translation>
    </message>
    <message id="MESS_TAB_NO_SOURCE_SRS">
        <source>the coordinate system of the file is not known: its coordinates are taken as they are</source>
        <translation>the coordinate system of the file is not known: its coordinates are taken as they are</translation>
    </message>
    <message id="MESS_TAB_OUTSIDE_TARGET">
        <source>the position lies outside the area of the target coordinate system</source>
        <translation>the position lies outside the area of the target coordinate system</translation>
    </message>
    <message id="MESS_TAB_FURTHER_PROBLEMS">
        <source>further problems are listed in the layer's metadata domain "problems"</source>
        <translation>further problems are listed in the layer's metadata domain "problems"</translation>
    </message>
    <message id="MESS_TAB_ENCODING_GUESSED">
        <source>the file does not declare its encoding: its texts are read as %1</source>
        <translation>the file does not declare its encoding: its texts are read as %1</translation>
    </message>
    <message id="MESS_TAB_NO_COORDINATES">
        <source>no columns with coordinates were recognized</source>
        <translation>no columns with coordinates were recognized</translation>
    </message>
    <message id="MESS_TAB_BEHIND_LAST">
        <source>the row continues after the last column: "%1" in column %2 has no header</source>
        <translation>the row continues after the last column: "%1" in column %2 has no header</translation>
    </message>
    <message id="MESS_TAB_MISSING_TEXT">
        <source>the text of the cell is lost: the workbook has no text number "%1"</source>
        <translation>the text of the cell is lost: the workbook has no text number "%1"</translation>
    </message>
    <message id="MESS_TAB_SWALLOWED_ROWS">
        <source>a quotation mark opens here and its text includes the rows below, %1 in number: a quotation mark is missing or superfluous</source>
        <translation>a quotation mark opens here and its text includes the rows below, %1 in number: a quotation mark is missing or superfluous</translation>
    </message>
    <message id="MESS_TAB_UNREADABLE_BYTES">
        <source>bytes that are not valid in the encoding %1 were replaced: %2 in this row</source>
        <translation>bytes that are not valid in the encoding %1 were replaced: %2 in this row</translation>
    </message>
    <message id="MESS_TAB_TEXT_CUT">
        <source>the text is too long: only its first characters are kept, %1 in number</source>
        <translation>the text is too long: only its first characters are kept, %1 in number</translation>
    </message>
    <message id="MESS_TAB_ZEROS">
        <source>zero bytes inside the text were taken out</source>
        <translation>zero bytes inside the text were taken out</translation>
    </message>
    <message id="MESS_TAB_LOST_VALUE">
        <source>the value "%1" is lost: the column holds numbers</source>
        <translation>the value "%1" is lost: the column holds numbers</translation>
    </message>
    <message id="MESS_TAB_DIGITS_LOST">
        <source>the value "%1" is read as a number: digits that a name needs are lost</source>
        <translation>the value "%1" is read as a number: digits that a name needs are lost</translation>
    </message>
    <message id="MESS_TAB_NO_HEIGHTS">
        <source>no columns with antenna heights above ground were recognized</source>
        <translation>no columns with antenna heights above ground were recognized</translation>
    </message>
    <message id="MESS_TAB_SEA_LEVEL">
        <source>the heights in column "%1" are above sea level, not above ground: they are not used</source>
        <translation>the heights in column "%1" are above sea level, not above ground: they are not used</translation>
    </message>
    <message id="MESS_TAB_NO_FREQUENCIES">
        <source>no column with frequencies was recognized</source>
        <translation>no column with frequencies was recognized</translation>
    </message>
    <message id="MESS_TAB_NO_HEIGHT">
        <source>the antenna height is empty</source>
        <translation>the antenna height is empty</translation>
    </message>
    <message id="MESS_TAB_HEIGHT_UNREADABLE">
        <source>the antenna height "%1" cannot be read</source>
        <translation>the antenna height "%1" cannot be read</translation>
    </message>
    <message id="MESS_TAB_NO_FREQUENCY">
        <source>the frequency is empty</source>
        <translation>the frequency is empty</translation>
    </message>
    <message id="MESS_TAB_FREQUENCY_UNREADABLE">
        <source>the frequency "%1" cannot be read</source>
        <translation>the frequency "%1" cannot be read</translation>
    </message>
    <message id="MESS_TAB_FREQUENCY_NOT_POSITIVE">
        <source>the frequency "%1" is not positive</source>
        <translation>the frequency "%1" is not positive</translation>
    </message>
    <message id="MESS_TAB_AZIMUTH_UNREADABLE">
        <source>the azimuth "%1" cannot be read: it is computed from the ends</source>
        <translation>the azimuth "%1" cannot be read: it is computed from the ends</translation>
    </message>
    <message id="MESS_TAB_TILT_UNREADABLE">
        <source>the tilt "%1" cannot be read</source>
        <translation>the tilt "%1" cannot be read</translation>
    </message>
    <message id="MESS_TAB_OFFSET_UNREADABLE">
        <source>the offset "%1" cannot be read: the position is taken without it</source>
        <translation>the offset "%1" cannot be read: the position is taken without it</translation>
    </message>
    <message id="MESS_TAB_ENDS_COINCIDE">
        <source>the ends of the link are less than a meter apart</source>
        <translation>the ends of the link are less than a meter apart</translation>
    </message>
    <message id="MESS_TAB_LENGTH_DIFFERS">
        <source>the stated length of %1 m does not match the distance between the ends, which is %2 m</source>
        <translation>the stated length of %1 m does not match the distance between the ends, which is %2 m</translation>
    </message>
    <message id="MESS_TAB_HEIGHT_RANGE">
        <source>the antenna height "%1" cannot be used: an antenna height lies between 0 and 2000 m above ground</source>
        <translation>the antenna height "%1" cannot be used: an antenna height lies between 0 and 2000 m above ground</translation>
    </message>
    <message id="MESS_TAB_TILT_RANGE">
        <source>the tilt "%1" cannot be used: a tilt lies between -90 and 90 degrees</source>
        <translation>the tilt "%1" cannot be used: a tilt lies between -90 and 90 degrees</translation>
    </message>
    <message id="MESS_TAB_NO_COORDINATE">
        <source>the coordinate is empty</source>
        <translation>the coordinate is empty</translation>
    </message>
    <message id="MESS_TAB_PART_EMPTY">
        <source>the coordinate "%1" cannot be read: it is empty</source>
        <translation>the coordinate "%1" cannot be read: it is empty</translation>
    </message>
    <message id="MESS_TAB_NOT_A_NUMBER">
        <source>the coordinate "%1" cannot be read: it is not a number</source>
        <translation>the coordinate "%1" cannot be read: it is not a number</translation>
    </message>
    <message id="MESS_TAB_WITHOUT_NUMBER">
        <source>the coordinate "%1" cannot be read: it holds no number</source>
        <translation>the coordinate "%1" cannot be read: it holds no number</translation>
    </message>
    <message id="MESS_TAB_NOT_FINITE">
        <source>the coordinate "%1" cannot be read: it is not finite</source>
        <translation>the coordinate "%1" cannot be read: it is not finite</translation>
    </message>
    <message id="MESS_TAB_NOT_AN_ANGLE">
        <source>the coordinate "%1" cannot be read: it is not an angle</source>
        <translation>the coordinate "%1" cannot be read: it is not an angle</translation>
    </message>
    <message id="MESS_TAB_NOT_A_POSITION">
        <source>the coordinate "%1" cannot be read: it is not a position</source>
        <translation>the coordinate "%1" cannot be read: it is not a position</translation>
    </message>
    <message id="MESS_TAB_FRACTION">
        <source>the coordinate "%1" cannot be read: only the last of degrees, minutes and seconds may have a fraction</source>
        <translation>the coordinate "%1" cannot be read: only the last of degrees, minutes and seconds may have a fraction</translation>
    </message>
    <message id="MESS_TAB_BELOW_60">
        <source>the coordinate "%1" cannot be read: minutes and seconds must lie below 60</source>
        <translation>the coordinate "%1" cannot be read: minutes and seconds must lie below 60</translation>
    </message>
    <message id="MESS_TAB_MANY_PARTS">
        <source>the coordinate "%1" cannot be read: it has more than degrees, minutes and seconds</source>
        <translation>the coordinate "%1" cannot be read: it has more than degrees, minutes and seconds</translation>
    </message>
    <message id="MESS_TAB_SIGN_AND_LETTER">
        <source>the coordinate "%1" cannot be read: it has both a minus sign and a hemisphere letter</source>
        <translation>the coordinate "%1" cannot be read: it has both a minus sign and a hemisphere letter</translation>
    </message>
    <message id="MESS_TAB_TWO_LETTERS">
        <source>the coordinate "%1" cannot be read: it has two hemisphere letters</source>
        <translation>the coordinate "%1" cannot be read: it has two hemisphere letters</translation>
    </message>
    <message id="MESS_TAB_NO_HEMISPHERE">
        <source>the coordinate "%1" cannot be read: it has a letter that is not a hemisphere</source>
        <translation>the coordinate "%1" cannot be read: it has a letter that is not a hemisphere</translation>
    </message>
    <message id="MESS_TAB_OTHER_AXIS">
        <source>the coordinate "%1" cannot be read: the hemisphere letter belongs to the other coordinate</source>
        <translation>the coordinate "%1" cannot be read: the hemisphere letter belongs to the other coordinate</translation>
    </message>
    <message id="MESS_TAB_LETTER_O">
        <source>the coordinate "%1" cannot be read: the letter O may mean west (Ouest, Oeste) or east (Ost): use W or E</source>
        <translation>the coordinate "%1" cannot be read: the letter O may mean west (Ouest, Oeste) or east (Ost): use W or E</translation>
    </message>
    <message id="MESS_TAB_OUTSIDE_GLOBE">
        <source>the coordinate "%1" cannot be read: it lies outside the globe</source>
        <translation>the coordinate "%1" cannot be read: it lies outside the globe</translation>
    </message>
    <message id="MESS_TAB_LONGITUDE">
        <source>the coordinate "%1" cannot be read: a longitude lies between -180 and 180</source>
        <translation>the coordinate "%1" cannot be read: a longitude lies between -180 and 180</translation>
    </message>
    <message id="MESS_TAB_LATITUDE">
        <source>the coordinate "%1" cannot be read: a latitude lies between -90 and 90</source>
        <translation>the coordinate "%1" cannot be read: a latitude lies between -90 and 90</translation>
    </message>
    <message id="MESS_TAB_ZERO_ZERO">
        <source>the coordinate "%1" cannot be read: 0, 0 stands for an unknown position</source>
        <translation>the coordinate "%1" cannot be read: 0, 0 stands for an unknown position</translation>
    </message>
    <message id="MESS_TAB_NO_VOCABULARY">
        <source>the installation is not complete: its vocabulary of column names is missing</source>
        <translation>the installation is not complete: its vocabulary of column names is missing</translation>
    </message>
    <message id="MESS_TAB_BAD_VOCABULARY">
        <source>the vocabulary %1 cannot be read: %2</source>
        <translation>the vocabulary %1 cannot be read: %2</translation>
    </message>
    <message id="MESS_TAB_SECTOR_HEIGHT">
        <source>the antenna height "%1" cannot be used: the transmitter is left out</source>
        <translation>the antenna height "%1" cannot be used: the transmitter is left out</translation>
    </message>
    <message id="MESS_TAB_SECTOR_AZIMUTH">
        <source>the azimuth "%1" cannot be used: the transmitter is left out</source>
        <translation>the azimuth "%1" cannot be used: the transmitter is left out</translation>
    </message>
    <message id="MESS_TAB_SECTOR_TILT">
        <source>the tilt "%1" cannot be used: the transmitter is left out</source>
        <translation>the tilt "%1" cannot be used: the transmitter is left out</translation>
    </message>
    <message id="MESS_TAB_SECTOR_BEAM_WIDTH">
        <source>the beam width "%1" cannot be used: the transmitter is left out</source>
        <translation>the beam width "%1" cannot be used: the transmitter is left out</translation>
    </message>
    <message id="MESS_TAB_SITE_ELSEWHERE">
        <source>the site "%1" lies %2 m away in row %3: this row makes a site of its own</source>
        <translation>the site "%1" lies %2 m away in row %3: this row makes a site of its own</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_EMPTY">
        <source>header "%1"; no values</source>
        <translation>header "%1"; no values</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_TEXTS">
        <source>header "%1"; %2 values, %3 of them different</source>
        <translation>header "%1"; %2 values, %3 of them different</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_WHOLE">
        <source>header "%1"; %2 whole numbers from %3 to %4</source>
        <translation>header "%1"; %2 whole numbers from %3 to %4</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_NUMBERS">
        <source>header "%1"; %2 numbers from %3 to %4</source>
        <translation>header "%1"; %2 numbers from %3 to %4</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_LISTS">
        <source>header "%1"; %2 lists of numbers from %3 to %4</source>
        <translation>header "%1"; %2 lists of numbers from %3 to %4</translation>
    </message>
    <message id="MESS_ROLE_SITE_ID">
        <source>Site ID</source>
        <translation>Site ID</translation>
    </message>
    <message id="MESS_ROLE_SITE_NAME">
        <source>Site name</source>
        <translation>Site name</translation>
    </message>
    <message id="MESS_ROLE_X">
        <source>X coordinate</source>
        <translation>X coordinate</translation>
    </message>
    <message id="MESS_ROLE_Y">
        <source>Y coordinate</source>
        <translation>Y coordinate</translation>
    </message>
    <message id="MESS_ROLE_PAIR">
        <source>Coordinates in one cell</source>
        <translation>Coordinates in one cell</translation>
    </message>
    <message id="MESS_ROLE_GROUND_HEIGHT">
        <source>Ground height</source>
        <translation>Ground height</translation>
    </message>
    <message id="MESS_ROLE_ANTENNA_HEIGHT">
        <source>Antenna height</source>
        <translation>Antenna height</translation>
    </message>
    <message id="MESS_ROLE_SEA_LEVEL_HEIGHT">
        <source>Antenna height above sea level</source>
        <translation>Antenna height above sea level</translation>
    </message>
    <message id="MESS_ROLE_SECTOR_ID">
        <source>Sector</source>
        <translation>Sector</translation>
    </message>
    <message id="MESS_ROLE_AZIMUTH">
        <source>Azimuth</source>
        <translation>Azimuth</translation>
    </message>
    <message id="MESS_ROLE_MECHANICAL_TILT">
        <source>Mechanical tilt</source>
        <translation>Mechanical tilt</translation>
    </message>
    <message id="MESS_ROLE_ELECTRICAL_TILT">
        <source>Electrical tilt</source>
        <translation>Electrical tilt</translation>
    </message>
    <message id="MESS_ROLE_TILT">
        <source>Tilt</source>
        <translation>Tilt</translation>
    </message>
    <message id="MESS_ROLE_BEAM_WIDTH">
        <source>Beam width</source>
        <translation>Beam width</translation>
    </message>
    <message id="MESS_ROLE_BAND">
        <source>Frequency band</source>
        <translation>Frequency band</translation>
    </message>
    <message id="MESS_ROLE_FREQUENCY">
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message id="MESS_ROLE_TECHNOLOGY">
        <source>Technology</source>
        <translation>Technology</translation>
    </message>
    <message id="MESS_ROLE_OPERATOR">
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message id="MESS_TAB_SHAPE_ROWS">
        <source>%1 rows, each of them a site</source>
        <translation>%1 rows, each of them a site</translation>
    </message>
    <message id="MESS_TAB_SHAPE_NUMBERED">
        <source>%1 rows, each of them a site with up to %2 transmitters</source>
        <translation>%1 rows, each of them a site with up to %2 transmitters</translation>
    </message>
    <message id="MESS_TAB_SHAPE_LISTS">
        <source>%1 rows, each of them a site with up to %2 transmitters in lists</source>
        <translation>%1 rows, each of them a site with up to %2 transmitters in lists</translation>
    </message>
    <message id="MESS_TAB_SHAPE_TALL">
        <source>%1 rows: %2 sites with %3 transmitters each, grouped by "%4" and position</source>
        <translation>%1 rows: %2 sites with %3 transmitters each, grouped by "%4" and position</translation>
    </message>
    <message id="MESS_TAB_SHAPE_PLACES">
        <source>%1 rows: %2 sites with %3 transmitters each, grouped by position</source>
        <translation>%1 rows: %2 sites with %3 transmitters each, grouped by position</translation>
    </message>
    <message id="MESS_TAB_TOTAL_ROW">
        <source>a row of sums is left out</source>
        <translation>a row of sums is left out</translation>
    </message>
    <message id="MESS_TAB_KNOWN_TABLE">
        <source>the table has no header: its columns are taken as those of "%1" (%2)</source>
        <translation>the table has no header: its columns are taken as those of "%1" (%2)</translation>
    </message>
    <message id="MESS_TAB_COLUMNS_BY_VALUES">
        <source>the table has no header: its columns are taken by their values (%1)</source>
        <translation>the table has no header: its columns are taken by their values (%1)</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_NO_HEADER">
        <source>no header; recognized by the values</source>
        <translation>no header; recognized by the values</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SWAPPED_GLOBE">
        <source>longitude and latitude seem to be exchanged: %1 of %2 latitudes lie beyond 90 degrees</source>
        <translation>longitude and latitude seem to be exchanged: %1 of %2 latitudes lie beyond 90 degrees</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SWAPPED">
        <source>the coordinates seem to be exchanged: in the other order, %1 of %2 positions lie in %3</source>
        <translation>the coordinates seem to be exchanged: in the other order, %1 of %2 positions lie in %3</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SWAPPED_ROWS">
        <source>coordinates seem to be exchanged in some rows: in the other order, they lie among the others (%1 of %2 positions, rows: %3)</source>
        <translation>coordinates seem to be exchanged in some rows: in the other order, they lie among the others (%1 of %2 positions, rows: %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SIGN">
        <source>a sign seems to be lost in %1: with the opposite one, %2 of %3 positions lie in %4</source>
        <translation>a sign seems to be lost in %1: with the opposite one, %2 of %3 positions lie in %4</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SIGN_ROWS">
        <source>a sign seems to be lost in some rows of %1: with the opposite one, they lie among the others (%2 of %3 positions, rows: %4)</source>
        <translation>a sign seems to be lost in some rows of %1: with the opposite one, they lie among the others (%2 of %3 positions, rows: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_DECIMAL">
        <source>the decimal mark seems to be misplaced in %1: times %2, %3 of %4 positions lie in %5</source>
        <translation>the decimal mark seems to be misplaced in %1: times %2, %3 of %4 positions lie in %5</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_DECIMAL_ROWS">
        <source>the decimal mark seems to be misplaced in some rows of %1: with another one, they lie among the others (%2 of %3 positions, rows: %4)</source>
        <translation>the decimal mark seems to be misplaced in some rows of %1: with another one, they lie among the others (%2 of %3 positions, rows: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_THOUSANDS">
        <source>a separator of thousands seems to be read as the decimal mark in %1: at all %2 positions they lie below 1000 and have up to three decimals</source>
        <translation>a separator of thousands seems to be read as the decimal mark in %1: at all %2 positions they lie below 1000 and have up to three decimals</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_NOT_DEGREES">
        <source>the coordinates of %1 of %2 positions are too large for degrees, but the coordinate system counts in degrees</source>
        <translation>the coordinates of %1 of %2 positions are too large for degrees, but the coordinate system counts in degrees</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_NOT_METERS">
        <source>the coordinates of %1 of %2 positions seem to be degrees, but the coordinate system counts in meters or feet</source>
        <translation>the coordinates of %1 of %2 positions seem to be degrees, but the coordinate system counts in meters or feet</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_UNDECLARED">
        <source>the coordinates are in meters, but the table declares no coordinate system</source>
        <translation>the coordinates are in meters, but the table declares no coordinate system</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_OUTLIER">
        <source>far from all others: %1 of %2 positions, more than %3 km from the middle of the table (rows: %4)</source>
        <translation>far from all others: %1 of %2 positions, more than %3 km from the middle of the table (rows: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_DUPLICATE">
        <source>site ids occur more than once: %1 of %2 sites share theirs (rows: %3)</source>
        <translation>site ids occur more than once: %1 of %2 sites share theirs (rows: %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_STACKED">
        <source>many positions are the same point: %1 of %2 are %3 (rows: %4)</source>
        <translation>many positions are the same point: %1 of %2 are %3 (rows: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_OUTSIDE">
        <source>outside the project's terrain: %1 of %2 positions (rows: %3)</source>
        <translation>outside the project's terrain: %1 of %2 positions (rows: %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_TERRAIN">
        <source>the area of the project's terrain</source>
        <translation>the area of the project's terrain</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_AREA">
        <source>the area of use of the coordinate system</source>
        <translation>the area of use of the coordinate system</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_LONGITUDES">
        <source>the longitudes</source>
        <translation>the longitudes</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_LATITUDES">
        <source>the latitudes</source>
        <translation>the latitudes</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_EASTINGS">
        <source>the eastings</source>
        <translation>the eastings</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_NORTHINGS">
        <source>the northings</source>
        <translation>the northings</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_COORDINATES">
        <source>both coordinates</source>
        <translation>both coordinates</translation>
    </message>
    <message id="MESS_TAB_BAD_EXTENT">
        <source>the area "%1" is not west, south, east and north in degrees</source>
        <translation>the area "%1" is not west, south, east and north in degrees</translation>
    </message>
    <message id="MESS_TAB_IN_SHEET">
        <source>in the sheet "%1": %2</source>
        <translation>in the sheet "%1": %2</translation>
    </message>
    <message id="MESS_TAB_NO_SUCH_SITE">
        <source>the site "%1" is not in the table of sites: the transmitter is left out</source>
        <translation>the site "%1" is not in the table of sites: the transmitter is left out</translation>
    </message>
    <message id="MESS_TAB_NO_SITE_NAMED">
        <source>the transmitter names no site: it is left out</source>
        <translation>the transmitter names no site: it is left out</translation>
    </message>
    <message id="MESS_TAB_BARE_SITES">
        <source>sites without a transmitter: %1</source>
        <translation>sites without a transmitter: %1</translation>
    </message>
    <message id="MESS_TAB_IN_FILE">
        <source>in the file "%1": %2</source>
        <translation>in the file "%1": %2</translation>
    </message>
    <message id="MESS_TAB_SECOND_FILE">
        <source>the file "%1" cannot be used: %2</source>
        <translation>the file "%1" cannot be used: %2</translation>
    </message>
    <message id="MESS_TAB_NO_SECTORS">
        <source>no columns of transmitters with the ids or names of these sites were recognized</source>
        <translation>no columns of transmitters with the ids or names of these sites were recognized</translation>
    </message>
    <message id="MESS_TAB_SECTORS_NOT_USED">
        <source>the table has transmitters of its own: those in the file "%1" are not used</source>
        <translation>the table has transmitters of its own: those in the file "%1" are not used</translation>
    </message>
    <message id="MESS_TAB_ENDS_ONLY_NAMED">
        <source>the ends of the links are only named (%1; %2): their positions must stand in a table of sites, on another sheet of the workbook or in the file that SITES (--sites) names</source>
        <translation>the ends of the links are only named (%1; %2): their positions must stand in a table of sites, on another sheet of the workbook or in the file that SITES (--sites) names</translation>
    </message>
    <message id="MESS_TAB_NO_NAMED_SITES">
        <source>no sites with a position and an id or a name were recognized</source>
        <translation>no sites with a position and an id or a name were recognized</translation>
    </message>
    <message id="MESS_TAB_NO_END_SITES">
        <source>the columns of the links name none of its sites</source>
        <translation>the columns of the links name none of its sites</translation>
    </message>
    <message id="MESS_TAB_END_SITES_NOT_USED">
        <source>the links have the positions of their ends: the sites in the file "%1" are not used</source>
        <translation>the links have the positions of their ends: the sites in the file "%1" are not used</translation>
    </message>
    <message id="MESS_TAB_END_NOT_NAMED">
        <source>the end is not named</source>
        <translation>the end is not named</translation>
    </message>
    <message id="MESS_TAB_END_UNKNOWN">
        <source>the site "%1" is not in the table of sites: the end has no position</source>
        <translation>the site "%1" is not in the table of sites: the end has no position</translation>
    </message>
    <message id="MESS_TAB_END_UNPLACED">
        <source>the site "%1" has no position in the table of sites</source>
        <translation>the site "%1" has no position in the table of sites</translation>
    </message>
    <message id="MESS_TAB_END_AMBIGUOUS">
        <source>the name "%1" stands for several places in the table of sites: the end has no position</source>
        <translation>the name "%1" stands for several places in the table of sites: the end has no position</translation>
    </message>
    <message id="MESS_TAB_SHAPE_JOINED">
        <source>%1 rows: %2 sites with %3 transmitters each from another table</source>
        <translation>%1 rows: %2 sites with %3 transmitters each from another table</translation>
    </message>
    <message id="MESS_TAB_MAPPING_UNUSED">
        <source>the mapping file "%1" is not used: %2</source>
        <translation>the mapping file "%1" is not used: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_LARGE">
        <source>a mapping file has at most 4 MiB</source>
        <translation>a mapping file has at most 4 MiB</translation>
    </message>
    <message id="MESS_TAB_MAPPING_JSON">
        <source>its JSON is not valid in line %1</source>
        <translation>its JSON is not valid in line %1</translation>
    </message>
    <message id="MESS_TAB_MAPPING_NONE">
        <source>it is not a mapping of columns</source>
        <translation>it is not a mapping of columns</translation>
    </message>
    <message id="MESS_TAB_MAPPING_VERSION">
        <source>its version %1 is not known</source>
        <translation>its version %1 is not known</translation>
    </message>
    <message id="MESS_TAB_MAPPING_KEY">
        <source>its entry "%1" is not known</source>
        <translation>its entry "%1" is not known</translation>
    </message>
    <message id="MESS_TAB_MAPPING_VALUE">
        <source>its entry "%1" has a value that cannot be used</source>
        <translation>its entry "%1" has a value that cannot be used</translation>
    </message>
    <message id="MESS_ROLE_LINK_NAME">
        <source>Name of the link</source>
        <translation>Name of the link</translation>
    </message>
    <message id="MESS_ROLE_DIAMETER">
        <source>Dish diameter</source>
        <translation>Dish diameter</translation>
    </message>
    <message id="MESS_ROLE_OFFSET_X">
        <source>Offset to the east</source>
        <translation>Offset to the east</translation>
    </message>
    <message id="MESS_ROLE_OFFSET_Y">
        <source>Offset to the north</source>
        <translation>Offset to the north</translation>
    </message>
    <message id="MESS_ROLE_LENGTH">
        <source>Path length</source>
        <translation>Path length</translation>
    </message>
    <message id="MESS_ROLE_REPEATER">
        <source>Passive repeater</source>
        <translation>Passive repeater</translation>
    </message>
    <message id="MESS_ROLE_OF_END">
        <source>%1, end %2</source>
        <translation>%1, end %2</translation>
    </message>
    <message id="MESS_TAB_SHAPE_LINKS">
        <source>%1 rows, each of them a link with both ends</source>
        <translation>%1 rows, each of them a link with both ends</translation>
    </message>
    <message id="MESS_TAB_SHAPE_NAMED_LINKS">
        <source>%1 rows, each of them a link between sites of another table</source>
        <translation>%1 rows, each of them a link between sites of another table</translation>
    </message>
    <message id="MESS_TAB_REPEATED_HEADER">
        <source>the row repeats the header</source>
        <translation>the row repeats the header</translation>
    </message>
    <message id="MESS_TAB_SITE_UNPLACED">
        <source>the site "%1" has no position</source>
        <translation>the site "%1" has no position</translation>
    </message>
    <message id="MESS_TAB_READ_AS">
        <source>the coordinate "%1" is read as %2</source>
        <translation>the coordinate "%1" is read as %2</translation>
    </message>
    <message id="MESS_TAB_READ_O">
        <source>the letter O in the coordinate "%1" is read as %2</source>
        <translation>the letter O in the coordinate "%1" is read as %2</translation>
    </message>
    <message id="MESS_TAB_LIST_LENGTH">
        <source>the list "%1" has %2 values for %3 transmitters: none of them is used</source>
        <translation>the list "%1" has %2 values for %3 transmitters: none of them is used</translation>
    </message>
    <message id="MESS_TAB_DIAMETERS">
        <source>the dishes are drawn with the size that the layer states, not with the diameters in the table (%1)</source>
        <translation>the dishes are drawn with the size that the layer states, not with the diameters in the table (%1)</translation>
    </message>
    <message id="MESS_TAB_REPEATERS">
        <source>passive repeaters are not drawn: each link is a straight line between its ends (%1)</source>
        <translation>passive repeaters are not drawn: each link is a straight line between its ends (%1)</translation>
    </message>
    <message id="MESS_TAB_LENGTH_UNREADABLE">
        <source>the stated length "%1" cannot be read</source>
        <translation>the stated length "%1" cannot be read</translation>
    </message>
    <message id="MESS_TAB_MAPPING_ROLES">
        <source>the mapping file "%1" names roles that are not known: %2</source>
        <translation>the mapping file "%1" names roles that are not known: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_COLUMNS">
        <source>the mapping file "%1" names columns that the table does not have, so that their roles are recognized: %2</source>
        <translation>the mapping file "%1" names columns that the table does not have, so that their roles are recognized: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_TWICE">
        <source>the mapping file "%1" names columns more than once, of which only the first role holds: %2</source>
        <translation>the mapping file "%1" names columns more than once, of which only the first role holds: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_HEADER">
        <source>the mapping file "%1" names header rows that the table does not have: the header is recognized</source>
        <translation>the mapping file "%1" names header rows that the table does not have: the header is recognized</translation>
    </message>
    <message id="MESS_TAB_MAPPING_SHEET">
        <source>the mapping file "%1" names the sheet "%2", which the workbook does not have: the sheet is recognized</source>
        <translation>the mapping file "%1" names the sheet "%2", which the workbook does not have: the sheet is recognized</translation>
    </message>
    <message id="MESS_TAB_MAPPING_KIND">
        <source>it is for tables of the other kind</source>
        <translation>it is for tables of the other kind</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_STATED">
        <source>stated in %1</source>
        <translation>stated in %1</translation>
    </message>
    <message id="MESS_ROW_COUNTS">
        <source>%1 = %2 used + %3 merged + %4 left out</source>
        <translation>%1 = %2 used + %3 merged + %4 left out</translation>
    </message>
    <message id="MESS_FATE_USED">
        <source>used</source>
        <translation>used</translation>
    </message>
    <message id="MESS_FATE_MERGED">
        <source>merged</source>
        <translation>merged</translation>
    </message>
    <message id="MESS_FATE_LEFT_OUT">
        <source>left out</source>
        <translation>left out</translation>
    </message>
    <message id="MESS_REPORT_ROW">
        <source>row</source>
        <translation>row</translation>
    </message>
    <message id="MESS_REPORT_FATE">
        <source>fate</source>
        <translation>fate</translation>
    </message>
    <message id="MESS_REPORT_SITE">
        <source>site or link</source>
        <translation>site or link</translation>
    </message>
    <message id="MESS_REPORT_FIRST_ROW">
        <source>first row</source>
        <translation>first row</translation>
    </message>
    <message id="MESS_REPORT_REASON">
        <source>reason</source>
        <translation>reason</translation>
    </message>
    <message id="MESS_REPORT_COLUMNS">
        <source>columns</source>
        <translation>columns</translation>
    </message>
    <message id="MESS_REPORT_TABLE">
        <source>table</source>
        <translation>table</translation>
    </message>
    <message id="MESS_TAB_NO_END_X">
        <source>no columns with coordinates of both ends were recognized: the longitude or easting of end %1 is missing</source>
        <translation>no columns with coordinates of both ends were recognized: the longitude or easting of end %1 is missing</translation>
    </message>
    <message id="MESS_TAB_NO_END_Y">
        <source>no columns with coordinates of both ends were recognized: the latitude or northing of end %1 is missing</source>
        <translation>no columns with coordinates of both ends were recognized: the latitude or northing of end %1 is missing</translation>
    </message>
    <message id="MESS_SAVE_REPORT">
        <source>Save the report...</source>
        <translation>Save the report...</translation>
    </message>
    <message id="MESS_SAVE_REJECTS">
        <source>Save the rows left out...</source>
        <translation>Save the rows left out...</translation>
    </message>
    <message id="MESS_TIP_SAVE_REPORT">
        <source>Save what became of every row, with the reasons</source>
        <translation>Save what became of every row, with the reasons</translation>
    </message>
    <message id="MESS_TIP_SAVE_REJECTS">
        <source>Save the rows that are left out, to correct them and open them again</source>
        <translation>Save the rows that are left out, to correct them and open them again</translation>
    </message>
    <message id="MESS_ROWS_ARE">
        <source>Rows: %1</source>
        <translation>Rows: %1</translation>
    </message>
    <message id="MESS_SECOND_ROWS_ARE">
        <source>Rows of %1: %2</source>
        <translation>Rows of %1: %2</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_UNIT">
        <source>%1; unit by the positions: %2</source>
        <translation>%1; unit by the positions: %2</translation>
    </message>
    <message id="MESS_TAB_CORRECTED">
        <source>repaired: the position "%1" is corrected to %2</source>
        <translation>repaired: the position "%1" is corrected to %2</translation>
    </message>
    <message id="MESS_TAB_UNUSED_AZIMUTHS">
        <source>the azimuths in column "%1" are not used: the sectors have those in column "%2"</source>
        <translation>the azimuths in column "%1" are not used: the sectors have those in column "%2"</translation>
    </message>
    <message id="MESS_TAB_UNFIT_AZIMUTHS">
        <source>the values in column "%1" are no azimuths in degrees: they are not used</source>
        <translation>the values in column "%1" are no azimuths in degrees: they are not used</translation>
    </message>
    <message id="MESS_TAB_WHOLE_DEGREES">
        <source>the coordinates in columns "%1" and "%2" are whole degrees: their minutes and seconds may be missing</source>
        <translation>the coordinates in columns "%1" and "%2" are whole degrees: their minutes and seconds may be missing</translation>
    </message>
    <message id="MESS_TAB_NOT_UTM">
        <source>the coordinate "%1" cannot be read: a position in a zone of UTM has an easting from 100 000 to 900 000 m and a northing up to 10 000 000 m</source>
        <translation>the coordinate "%1" cannot be read: a position in a zone of UTM has an easting from 100 000 to 900 000 m and a northing up to 10 000 000 m</translation>
    </message>
    <message id="MESS_TAB_NO_ZONE">
        <source>the zone "%1" cannot be used: UTM has the zones 1 to 60, with a letter for the band or the hemisphere</source>
        <translation>the zone "%1" cannot be used: UTM has the zones 1 to 60, with a letter for the band or the hemisphere</translation>
    </message>
    <message id="MESS_TAB_UTM_NORTH">
        <source>the zones of UTM have no letter: they are taken as those of the northern hemisphere</source>
        <translation>the zones of UTM have no letter: they are taken as those of the northern hemisphere</translation>
    </message>
    <message id="MESS_TAB_UTM_SOUTH">
        <source>the zones of UTM have no letter: because of their northings, they are taken as those of the southern hemisphere</source>
        <translation>the zones of UTM have no letter: because of their northings, they are taken as those of the southern hemisphere</translation>
    </message>
    <message id="MESS_TAB_GRID">
        <source>the column "%1" holds positions in the %2 grid, which are not read</source>
        <translation>the column "%1" holds positions in the %2 grid, which are not read</translation>
    </message>
    <message id="MESS_ROLE_UTM_ZONE">
        <source>UTM zone</source>
        <translation>UTM zone</translation>
    </message>
    <message id="MESS_TAB_HIDDEN_ROWS">
        <source>hidden rows are read like all others: %1 of them, the first of which is row %2</source>
        <translation>hidden rows are read like all others: %1 of them, the first of which is row %2</translation>
    </message>
    <message id="MESS_TAB_AZIMUTH_DIFFERS">
        <source>the stated azimuth of %1 degrees does not point to the other end, which lies at %2 degrees</source>
        <translation>the stated azimuth of %1 degrees does not point to the other end, which lies at %2 degrees</translation>
    </message>
    <message id="MESS_TAB_UNKNOWN_UNIT">
        <source>the unit "%1" is not known: the height is not used</source>
        <translation>the unit "%1" is not known: the height is not used</translation>
    </message>
    <message id="MESS_TAB_OTHER_SHEETS">
        <source>only the sheet "%1" is read: other sheets hold tables with the same columns (%2)</source>
        <translation>only the sheet "%1" is read: other sheets hold tables with the same columns (%2)</translation>
    </message>
    <message id="MESS_TAB_UPWARD_TILTS">
        <source>all tilts in column "%1" are negative: the antennas point upwards</source>
        <translation>all tilts in column "%1" are negative: the antennas point upwards</translation>
    </message>
    <message id="MESS_TAB_LOST_DECIMALS">
        <source>the whole numbers in the columns "%1" and "%2" are read as degrees after division by %3</source>
        <translation>the whole numbers in the columns "%1" and "%2" are read as degrees after division by %3</translation>
    </message>
    <message id="MESS_TAB_DATUMS">
        <source>the column "%1" names several datums (%2): all positions are read as those of EPSG:%3</source>
        <translation>the column "%1" names several datums (%2): all positions are read as those of EPSG:%3</translation>
    </message>
    <message id="MESS_TAB_NORTH_X">
        <source>"%1" is read as northing and "%2" as easting, as in EPSG:%3: the positions could also be read the other way round</source>
        <translation>"%1" is read as northing and "%2" as easting, as in EPSG:%3: the positions could also be read the other way round</translation>
    </message>
    <message id="MESS_ROLE_SECOND">
        <source>Columns of the table "%1"</source>
        <translation>Columns of the table "%1"</translation>
    </message>
    <message id="MESS_TAB_REPEATED_CELL">
        <source>the cell stands in a row above with the same values: it is drawn once</source>
        <translation>the cell stands in a row above with the same values: it is drawn once</translation>
    </message>
    <message id="MESS_CANT_READ_LAYER">
        <source>the layer cannot be read</source>
        <translation>the layer cannot be read</translation>
    </message>
</context>
</TS>
