<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Site tables</name>
    <message id="MESS_TAB_NO_FILE_NAME">
        <source>no file name is given</source>
        <translation>aucun nom de fichier n'est indiqué</translation>
    </message>
    <message id="MESS_TAB_NOT_LOCAL">
        <source>tables are read from local files only</source>
        <translation>seuls les tableaux qui se trouvent dans des fichiers locaux sont lus</translation>
    </message>
    <message id="MESS_TAB_NO_READER">
        <source>no driver for it was found</source>
        <translation>aucun pilote n'a été trouvé pour ce fichier</translation>
    </message>
    <message id="MESS_TAB_OUT_OF_MEMORY">
        <source>out of memory</source>
        <translation>la mémoire est insuffisante</translation>
    </message>
    <message id="MESS_TAB_FOLDER">
        <source>this is a folder, not a file</source>
        <translation>c'est un dossier, pas un fichier</translation>
    </message>
    <message id="MESS_TAB_DEVICE">
        <source>this is not a regular file</source>
        <translation>ce n'est pas un fichier ordinaire</translation>
    </message>
    <message id="MESS_TAB_NO_FILE">
        <source>the file does not exist</source>
        <translation>le fichier n'existe pas</translation>
    </message>
    <message id="MESS_TAB_NO_PERMISSION">
        <source>the file cannot be read: Permission denied</source>
        <translation>le fichier ne peut pas être lu&#xa0;: permission refusée</translation>
    </message>
    <message id="MESS_TAB_UNREADABLE">
        <source>the file cannot be read: %1</source>
        <translation>le fichier ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message id="MESS_TAB_FILE_CHANGED">
        <source>the file has changed while it was read</source>
        <translation>le fichier a été modifié pendant la lecture</translation>
    </message>
    <message id="MESS_TAB_EMPTY_FILE">
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message id="MESS_TAB_BLANK_FILE">
        <source>the file holds only white space</source>
        <translation>le fichier ne contient que des espaces et des lignes vides</translation>
    </message>
    <message id="MESS_TAB_BINARY_FILE">
        <source>this is neither a text nor a workbook</source>
        <translation>ce n'est ni un texte ni un classeur</translation>
    </message>
    <message id="MESS_TAB_ENCODING">
        <source>the encoding "%1" is not known</source>
        <translation>l'encodage «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message id="MESS_TAB_PDF">
        <source>this is a PDF document, not a table</source>
        <translation>c'est un document PDF, pas un tableau</translation>
    </message>
    <message id="MESS_TAB_JSON">
        <source>this is JSON, not a table</source>
        <translation>c'est du JSON, pas un tableau</translation>
    </message>
    <message id="MESS_TAB_SYLK">
        <source>this is a SYLK file: save it as .xlsx or .csv</source>
        <translation>c'est un fichier SYLK&#xa0;: enregistrez-le au format .xlsx ou .csv</translation>
    </message>
    <message id="MESS_TAB_WEB_PAGE">
        <source>this is a web page, not a workbook: save it as .xlsx or .csv</source>
        <translation>c'est une page web, pas un classeur&#xa0;: enregistrez-la au format .xlsx ou .csv</translation>
    </message>
    <message id="MESS_TAB_OPEN_DOCUMENT">
        <source>this is an OpenDocument file: save it as .xlsx or .csv</source>
        <translation>c'est un fichier OpenDocument&#xa0;: enregistrez-le au format .xlsx ou .csv</translation>
    </message>
    <message id="MESS_TAB_XLSB">
        <source>this is a binary workbook (.xlsb): save it as .xlsx</source>
        <translation>c'est un classeur binaire (.xlsb)&#xa0;: enregistrez-le au format .xlsx</translation>
    </message>
    <message id="MESS_TAB_OLD_WORKBOOK">
        <source>this workbook is older than Excel 5: save it as .xlsx</source>
        <translation>ce classeur est antérieur à Excel 5&#xa0;: enregistrez-le au format .xlsx</translation>
    </message>
    <message id="MESS_TAB_ARCHIVE">
        <source>this is an archive, but not a workbook (.xlsx)</source>
        <translation>c'est une archive, mais pas un classeur (.xlsx)</translation>
    </message>
    <message id="MESS_TAB_OFFICE_DOCUMENT">
        <source>this is an office document, but not a workbook (.xls)</source>
        <translation>c'est un document bureautique, mais pas un classeur (.xls)</translation>
    </message>
    <message id="MESS_TAB_OTHER_XML">
        <source>this XML file is not a SpreadsheetML 2003 workbook: its root element is &lt;%1&gt;</source>
        <translation>ce fichier XML n'est pas un classeur SpreadsheetML 2003&#xa0;: son élément racine est &lt;%1&gt;</translation>
    </message>
    <message id="MESS_TAB_DOCUMENT_TYPE">
        <source>the XML file declares a document type: tables do not need it, and attacks use it</source>
        <translation>le fichier XML déclare un type de document : les tableaux n'en ont pas besoin, et des attaques s'en servent</translation>
    </message>
    <message id="MESS_TAB_PASSWORD">
        <source>the workbook is protected by a password</source>
        <translation>le classeur est protégé par un mot de passe</translation>
    </message>
    <message id="MESS_TAB_FILE_CUT">
        <source>the file is cut short</source>
        <translation>le fichier est tronqué</translation>
    </message>
    <message id="MESS_TAB_FILE_CUT_IN_ROW">
        <source>the file is cut short in row %1</source>
        <translation>le fichier est tronqué à la ligne %1</translation>
    </message>
    <message id="MESS_TAB_SHEET_CUT">
        <source>the file is cut short: the sheet does not end</source>
        <translation>le fichier est tronqué&#xa0;: la feuille n'a pas de fin</translation>
    </message>
    <message id="MESS_TAB_WORKBOOK_CUT">
        <source>the workbook is cut short</source>
        <translation>le classeur est tronqué</translation>
    </message>
    <message id="MESS_TAB_WORKBOOK_DAMAGED">
        <source>the workbook is damaged or cut short</source>
        <translation>le classeur est endommagé ou tronqué</translation>
    </message>
    <message id="MESS_TAB_NO_DIRECTORY">
        <source>the workbook is cut short: its directory is missing</source>
        <translation>le classeur est tronqué&#xa0;: son répertoire manque</translation>
    </message>
    <message id="MESS_TAB_DIRECTORY_DAMAGED">
        <source>the directory of the workbook is damaged</source>
        <translation>le répertoire du classeur est endommagé</translation>
    </message>
    <message id="MESS_TAB_PART_MISPLACED">
        <source>the workbook is damaged: a part is not where the directory says</source>
        <translation>le classeur est endommagé&#xa0;: une partie n'est pas là où le répertoire l'indique</translation>
    </message>
    <message id="MESS_TAB_SHEET_MISPLACED">
        <source>the workbook is damaged: a sheet is not where it should be</source>
        <translation>le classeur est endommagé&#xa0;: une feuille n'est pas là où elle devrait être</translation>
    </message>
    <message id="MESS_TAB_TEXTS_CUT">
        <source>the workbook is damaged: its texts are cut short</source>
        <translation>le classeur est endommagé&#xa0;: ses textes sont tronqués</translation>
    </message>
    <message id="MESS_TAB_NO_PART">
        <source>the workbook lacks its part %1</source>
        <translation>il manque au classeur la partie %1</translation>
    </message>
    <message id="MESS_TAB_PART_TOO_LARGE">
        <source>a part of the workbook is too large</source>
        <translation>une partie du classeur est trop grande</translation>
    </message>
    <message id="MESS_TAB_COMPRESSION">
        <source>the compression method of the workbook is not supported</source>
        <translation>la méthode de compression du classeur n'est pas prise en charge</translation>
    </message>
    <message id="MESS_TAB_DATA_DAMAGED">
        <source>the compressed data of the workbook are damaged</source>
        <translation>les données compressées du classeur sont endommagées</translation>
    </message>
    <message id="MESS_TAB_DATA_CUT">
        <source>the compressed data of the workbook are cut short</source>
        <translation>les données compressées du classeur sont tronquées</translation>
    </message>
    <message id="MESS_TAB_CHECK_SUM">
        <source>the compressed data of the workbook do not match their checksum</source>
        <translation>la somme de contrôle des données compressées du classeur est fausse</translation>
    </message>
    <message id="MESS_TAB_NO_ROOT_ELEMENT">
        <source>the XML file has no root element</source>
        <translation>le fichier XML n'a pas d'élément racine</translation>
    </message>
    <message id="MESS_TAB_LONG_TAG">
        <source>a tag or comment in the XML is too long</source>
        <translation>une balise ou un commentaire du XML est trop long</translation>
    </message>
    <message id="MESS_TAB_LONG_ROW">
        <source>a single row is longer than 256 MiB</source>
        <translation>une seule ligne dépasse 256&#xa0;Mio</translation>
    </message>
    <message id="MESS_TAB_NO_DELIMITER">
        <source>no delimiter was found: semicolons, tabs, bars and commas do not separate columns in this file</source>
        <translation>aucun séparateur n'a été trouvé : ni point-virgule, ni tabulation, ni barre, ni virgule ne sépare de colonnes dans ce fichier</translation>
    </message>
    <message id="MESS_TAB_NO_SHEET">
        <source>there is no sheet called "%1"</source>
        <translation>il n'y a pas de feuille nommée «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="MESS_TAB_NO_VALUE">
        <source>there is no cell with a value in the file</source>
        <translation>aucune cellule du fichier ne contient de valeur</translation>
    </message>
    <message id="MESS_TAB_FILE_OF_ONE_COLUMN">
        <source>the file has only one column</source>
        <translation>le fichier n'a qu'une colonne</translation>
    </message>
    <message id="MESS_TAB_TABLE_OF_ONE_COLUMN">
        <source>the table has only one column</source>
        <translation>le tableau n'a qu'une colonne</translation>
    </message>
    <message id="MESS_TAB_NO_HEADER">
        <source>no header was found: none of the first rows names its columns</source>
        <translation>aucun en-tête n'a été trouvé&#xa0;: aucune des premières lignes ne nomme les colonnes</translation>
    </message>
    <message id="MESS_TAB_NO_ROW">
        <source>there is a header in row %1, but no row below it</source>
        <translation>il y a un en-tête à la ligne %1, mais aucune ligne en dessous</translation>
    </message>
    <message id="MESS_TAB_SITES_NOT_LINKS">
        <source>this is a table of sites, not of links: it has the coordinates of one position per row (%1), not those of two ends</source>
        <translation>ce tableau contient des sites, pas des liaisons&#xa0;: il a les coordonnées d'une seule position par ligne (%1), pas celles de deux extrémités</translation>
    </message>
    <message id="MESS_TAB_NO_ENDS">
        <source>no columns with coordinates of both ends were recognized</source>
        <translation>aucune colonne avec les coordonnées des deux extrémités n'a été reconnue</translation>
    </message>
    <message id="MESS_TAB_ONE_END">
        <source>no columns with coordinates of both ends were recognized: those of end %1 are missing</source>
        <translation>aucune colonne avec les coordonnées des deux extrémités n'a été reconnue&#xa0;: celles de l'extrémité %1 manquent</translation>
    </message>
    <message id="MESS_TAB_UNKNOWN_SRS">
        <source>the coordinate system "%1" is not known</source>
        <translation>le système de coordonnées «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message id="MESS_TAB_NOT_HORIZONTAL">
        <source>the coordinate system "%1" is vertical or geocentric: it has no horizontal coordinates</source>
        <translation>le système de coordonnées «&#xa0;%1&#xa0;» est vertical ou géocentrique&#xa0;: il n'a pas de coordonnées horizontales</translation>
    </message>
    <message id="MESS_TAB_NO_WAY">
        <source>there is no transformation from the coordinate system "%1" to "%2"</source>
        <translation>il n'existe pas de transformation du système de coordonnées «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;»</translation>
    </message>
    <message id="MESS_TAB_UNKNOWN_EPSG">
        <source>the file declares the coordinate system EPSG:%1, which is not known</source>
        <translation>le fichier déclare le système de coordonnées EPSG:%1, qui est inconnu</translation>
    </message>
    <message id="MESS_TAB_NO_SOURCE_SRS">
        <source>the coordinate system of the file is not known: its coordinates are taken as they are</source>
        <translation>le système de coordonnées du fichier est inconnu&#xa0;: ses coordonnées sont prises telles quelles</translation>
    </message>
    <message id="MESS_TAB_OUTSIDE_TARGET">
        <source>the position lies outside the area of the target coordinate system</source>
        <translation>la position est en dehors du domaine du système de coordonnées cible</translation>
    </message>
    <message id="MESS_TAB_FURTHER_PROBLEMS">
        <source>further problems are listed in the layer's metadata domain "problems"</source>
        <translation>les problèmes suivants figurent dans le domaine de métadonnées «&#xa0;problems&#xa0;» de la couche</translation>
    </message>
    <message id="MESS_TAB_ENCODING_GUESSED">
        <source>the file does not declare its encoding: its texts are read as %1</source>
        <translation>le fichier n'indique pas son encodage&#xa0;: ses textes sont lus en %1</translation>
    </message>
    <message id="MESS_TAB_NO_COORDINATES">
        <source>no columns with coordinates were recognized</source>
        <translation>aucune colonne de coordonnées n'a été reconnue</translation>
    </message>
    <message id="MESS_TAB_BEHIND_LAST">
        <source>the row continues after the last column: "%1" in column %2 has no header</source>
        <translation>la ligne continue après la dernière colonne&#xa0;: «&#xa0;%1&#xa0;», dans la colonne %2, n'a pas d'en-tête</translation>
    </message>
    <message id="MESS_TAB_MISSING_TEXT">
        <source>the text of the cell is lost: the workbook has no text number "%1"</source>
        <translation>le texte de la cellule est perdu&#xa0;: le classeur n'a pas de texte numéro «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="MESS_TAB_SWALLOWED_ROWS">
        <source>a quotation mark opens here and its text includes the rows below, %1 in number: a quotation mark is missing or superfluous</source>
        <translation>un guillemet s'ouvre ici et son texte englobe les lignes suivantes, au nombre de %1 : un guillemet manque ou est superflu</translation>
    </message>
    <message id="MESS_TAB_UNREADABLE_BYTES">
        <source>bytes that are not valid in the encoding %1 were replaced: %2 in this row</source>
        <translation>des octets non valides dans l'encodage %1 ont été remplacés&#xa0;: %2 dans cette ligne</translation>
    </message>
    <message id="MESS_TAB_TEXT_CUT">
        <source>the text is too long: only its first characters are kept, %1 in number</source>
        <translation>le texte est trop long&#xa0;: seuls ses premiers caractères sont conservés, au nombre de %1</translation>
    </message>
    <message id="MESS_TAB_ZEROS">
        <source>zero bytes inside the text were taken out</source>
        <translation>des octets nuls à l'intérieur du texte ont été supprimés</translation>
    </message>
    <message id="MESS_TAB_LOST_VALUE">
        <source>the value "%1" is lost: the column holds numbers</source>
        <translation>la valeur «&#xa0;%1&#xa0;» est perdue&#xa0;: la colonne contient des nombres</translation>
    </message>
    <message id="MESS_TAB_DIGITS_LOST">
        <source>the value "%1" is read as a number: digits that a name needs are lost</source>
        <translation>la valeur «&#xa0;%1&#xa0;» est lue comme un nombre&#xa0;: des chiffres utiles à un identifiant sont perdus</translation>
    </message>
    <message id="MESS_TAB_NO_HEIGHTS">
        <source>no columns with antenna heights above ground were recognized</source>
        <translation>aucune colonne avec la hauteur des antennes au-dessus du sol n'a été reconnue</translation>
    </message>
    <message id="MESS_TAB_SEA_LEVEL">
        <source>the heights in column "%1" are above sea level, not above ground: they are not used</source>
        <translation>les hauteurs de la colonne «&#xa0;%1&#xa0;» sont comptées depuis le niveau de la mer, pas depuis le sol&#xa0;: elles ne sont pas utilisées</translation>
    </message>
    <message id="MESS_TAB_NO_FREQUENCIES">
        <source>no column with frequencies was recognized</source>
        <translation>aucune colonne avec des fréquences n'a été reconnue</translation>
    </message>
    <message id="MESS_TAB_NO_HEIGHT">
        <source>the antenna height is empty</source>
        <translation>la hauteur de l'antenne est vide</translation>
    </message>
    <message id="MESS_TAB_HEIGHT_UNREADABLE">
        <source>the antenna height "%1" cannot be read</source>
        <translation>la hauteur d'antenne «&#xa0;%1&#xa0;» ne peut pas être lue</translation>
    </message>
    <message id="MESS_TAB_NO_FREQUENCY">
        <source>the frequency is empty</source>
        <translation>la fréquence est vide</translation>
    </message>
    <message id="MESS_TAB_FREQUENCY_UNREADABLE">
        <source>the frequency "%1" cannot be read</source>
        <translation>la fréquence «&#xa0;%1&#xa0;» ne peut pas être lue</translation>
    </message>
    <message id="MESS_TAB_FREQUENCY_NOT_POSITIVE">
        <source>the frequency "%1" is not positive</source>
        <translation>la fréquence «&#xa0;%1&#xa0;» n'est pas positive</translation>
    </message>
    <message id="MESS_TAB_AZIMUTH_UNREADABLE">
        <source>the azimuth "%1" cannot be read: it is computed from the ends</source>
        <translation>l'azimut «&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: il est calculé à partir des extrémités</translation>
    </message>
    <message id="MESS_TAB_TILT_UNREADABLE">
        <source>the tilt "%1" cannot be read</source>
        <translation>l'inclinaison «&#xa0;%1&#xa0;» ne peut pas être lue</translation>
    </message>
    <message id="MESS_TAB_OFFSET_UNREADABLE">
        <source>the offset "%1" cannot be read: the position is taken without it</source>
        <translation>le décalage «&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: la position est prise sans lui</translation>
    </message>
    <message id="MESS_TAB_ENDS_COINCIDE">
        <source>the ends of the link are less than a meter apart</source>
        <translation>les extrémités de la liaison sont à moins d'un mètre l'une de l'autre</translation>
    </message>
    <message id="MESS_TAB_LENGTH_DIFFERS">
        <source>the stated length of %1 m does not match the distance between the ends, which is %2 m</source>
        <translation>la longueur indiquée de %1 m ne correspond pas à la distance entre les extrémités, qui est de %2 m</translation>
    </message>
    <message id="MESS_TAB_HEIGHT_RANGE">
        <source>the antenna height "%1" cannot be used: an antenna height lies between 0 and 2000 m above ground</source>
        <translation>la hauteur d'antenne «&#xa0;%1&#xa0;» ne peut pas être utilisée&#xa0;: une hauteur d'antenne est comprise entre 0 et 2000 m au-dessus du sol</translation>
    </message>
    <message id="MESS_TAB_TILT_RANGE">
        <source>the tilt "%1" cannot be used: a tilt lies between -90 and 90 degrees</source>
        <translation>l'inclinaison «&#xa0;%1&#xa0;» ne peut pas être utilisée&#xa0;: une inclinaison est comprise entre -90 et 90 degrés</translation>
    </message>
    <message id="MESS_TAB_NO_COORDINATE">
        <source>the coordinate is empty</source>
        <translation>la coordonnée est vide</translation>
    </message>
    <message id="MESS_TAB_PART_EMPTY">
        <source>the coordinate "%1" cannot be read: it is empty</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: une partie est vide</translation>
    </message>
    <message id="MESS_TAB_NOT_A_NUMBER">
        <source>the coordinate "%1" cannot be read: it is not a number</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: ce n'est pas un nombre</translation>
    </message>
    <message id="MESS_TAB_WITHOUT_NUMBER">
        <source>the coordinate "%1" cannot be read: it holds no number</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle ne contient aucun nombre</translation>
    </message>
    <message id="MESS_TAB_NOT_FINITE">
        <source>the coordinate "%1" cannot be read: it is not finite</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle n'est pas finie</translation>
    </message>
    <message id="MESS_TAB_NOT_AN_ANGLE">
        <source>the coordinate "%1" cannot be read: it is not an angle</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: ce n'est pas un angle</translation>
    </message>
    <message id="MESS_TAB_NOT_A_POSITION">
        <source>the coordinate "%1" cannot be read: it is not a position</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: ce n'est pas une position</translation>
    </message>
    <message id="MESS_TAB_FRACTION">
        <source>the coordinate "%1" cannot be read: only the last of degrees, minutes and seconds may have a fraction</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: parmi les degrés, minutes et secondes, seul le dernier nombre peut avoir des décimales</translation>
    </message>
    <message id="MESS_TAB_BELOW_60">
        <source>the coordinate "%1" cannot be read: minutes and seconds must lie below 60</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: les minutes et les secondes doivent être inférieures à 60</translation>
    </message>
    <message id="MESS_TAB_MANY_PARTS">
        <source>the coordinate "%1" cannot be read: it has more than degrees, minutes and seconds</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle compte plus que des degrés, des minutes et des secondes</translation>
    </message>
    <message id="MESS_TAB_SIGN_AND_LETTER">
        <source>the coordinate "%1" cannot be read: it has both a minus sign and a hemisphere letter</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle a à la fois un signe moins et une lettre d'hémisphère</translation>
    </message>
    <message id="MESS_TAB_TWO_LETTERS">
        <source>the coordinate "%1" cannot be read: it has two hemisphere letters</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle a deux lettres d'hémisphère</translation>
    </message>
    <message id="MESS_TAB_NO_HEMISPHERE">
        <source>the coordinate "%1" cannot be read: it has a letter that is not a hemisphere</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle contient une lettre qui ne désigne pas un hémisphère</translation>
    </message>
    <message id="MESS_TAB_OTHER_AXIS">
        <source>the coordinate "%1" cannot be read: the hemisphere letter belongs to the other coordinate</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: la lettre d'hémisphère est celle de l'autre coordonnée</translation>
    </message>
    <message id="MESS_TAB_LETTER_O">
        <source>the coordinate "%1" cannot be read: the letter O may mean west (Ouest, Oeste) or east (Ost): use W or E</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: la lettre O peut signifier ouest (Ouest, Oeste) ou est (Ost)&#xa0;: écrivez W ou E</translation>
    </message>
    <message id="MESS_TAB_OUTSIDE_GLOBE">
        <source>the coordinate "%1" cannot be read: it lies outside the globe</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: elle est en dehors du globe</translation>
    </message>
    <message id="MESS_TAB_LONGITUDE">
        <source>the coordinate "%1" cannot be read: a longitude lies between -180 and 180</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: une longitude est comprise entre -180 et 180</translation>
    </message>
    <message id="MESS_TAB_LATITUDE">
        <source>the coordinate "%1" cannot be read: a latitude lies between -90 and 90</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: une latitude est comprise entre -90 et 90</translation>
    </message>
    <message id="MESS_TAB_ZERO_ZERO">
        <source>the coordinate "%1" cannot be read: 0, 0 stands for an unknown position</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: 0, 0 désigne une position inconnue</translation>
    </message>
    <message id="MESS_TAB_NO_VOCABULARY">
        <source>the installation is not complete: its vocabulary of column names is missing</source>
        <translation>l'installation n'est pas complète&#xa0;: son vocabulaire des noms de colonnes manque</translation>
    </message>
    <message id="MESS_TAB_BAD_VOCABULARY">
        <source>the vocabulary %1 cannot be read: %2</source>
        <translation>le vocabulaire %1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_SECTOR_HEIGHT">
        <source>the antenna height "%1" cannot be used: the transmitter is left out</source>
        <translation>la hauteur d'antenne «&#xa0;%1&#xa0;» n'est pas utilisable&#xa0;: l'émetteur est laissé de côté</translation>
    </message>
    <message id="MESS_TAB_SECTOR_AZIMUTH">
        <source>the azimuth "%1" cannot be used: the transmitter is left out</source>
        <translation>l'azimut «&#xa0;%1&#xa0;» n'est pas utilisable&#xa0;: l'émetteur est laissé de côté</translation>
    </message>
    <message id="MESS_TAB_SECTOR_TILT">
        <source>the tilt "%1" cannot be used: the transmitter is left out</source>
        <translation>l'inclinaison «&#xa0;%1&#xa0;» n'est pas utilisable&#xa0;: l'émetteur est laissé de côté</translation>
    </message>
    <message id="MESS_TAB_SECTOR_BEAM_WIDTH">
        <source>the beam width "%1" cannot be used: the transmitter is left out</source>
        <translation>l'ouverture «&#xa0;%1&#xa0;» n'est pas utilisable&#xa0;: l'émetteur est laissé de côté</translation>
    </message>
    <message id="MESS_TAB_SITE_ELSEWHERE">
        <source>the site "%1" lies %2 m away in row %3: this row makes a site of its own</source>
        <translation>le site «&#xa0;%1&#xa0;» se trouve à %2 m de là à la ligne %3&#xa0;: cette ligne forme un site à part</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_EMPTY">
        <source>header "%1"; no values</source>
        <translation>en-tête «&#xa0;%1&#xa0;»&#xa0;; aucune valeur</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_TEXTS">
        <source>header "%1"; %2 values, %3 of them different</source>
        <translation>en-tête «&#xa0;%1&#xa0;»&#xa0;; valeurs&#xa0;: %2, dont différentes&#xa0;: %3</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_WHOLE">
        <source>header "%1"; %2 whole numbers from %3 to %4</source>
        <translation>en-tête «&#xa0;%1&#xa0;»&#xa0;; %2 nombres entiers de %3 à %4</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_NUMBERS">
        <source>header "%1"; %2 numbers from %3 to %4</source>
        <translation>en-tête «&#xa0;%1&#xa0;»&#xa0;; %2 nombres de %3 à %4</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_LISTS">
        <source>header "%1"; %2 lists of numbers from %3 to %4</source>
        <translation>en-tête «&#xa0;%1&#xa0;»&#xa0;; %2 listes de nombres de %3 à %4</translation>
    </message>
    <message id="MESS_ROLE_SITE_ID">
        <source>Site ID</source>
        <translation>Identifiant du site</translation>
    </message>
    <message id="MESS_ROLE_SITE_NAME">
        <source>Site name</source>
        <translation>Nom du site</translation>
    </message>
    <message id="MESS_ROLE_X">
        <source>X coordinate</source>
        <translation>Coordonnée X</translation>
    </message>
    <message id="MESS_ROLE_Y">
        <source>Y coordinate</source>
        <translation>Coordonnée Y</translation>
    </message>
    <message id="MESS_ROLE_PAIR">
        <source>Coordinates in one cell</source>
        <translation>Coordonnées dans une cellule</translation>
    </message>
    <message id="MESS_ROLE_GROUND_HEIGHT">
        <source>Ground height</source>
        <translation>Altitude du sol</translation>
    </message>
    <message id="MESS_ROLE_ANTENNA_HEIGHT">
        <source>Antenna height</source>
        <translation>Hauteur d'antenne</translation>
    </message>
    <message id="MESS_ROLE_SEA_LEVEL_HEIGHT">
        <source>Antenna height above sea level</source>
        <translation>Altitude de l'antenne</translation>
    </message>
    <message id="MESS_ROLE_SECTOR_ID">
        <source>Sector</source>
        <translation>Secteur</translation>
    </message>
    <message id="MESS_ROLE_AZIMUTH">
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message id="MESS_ROLE_MECHANICAL_TILT">
        <source>Mechanical tilt</source>
        <translation>Inclinaison mécanique</translation>
    </message>
    <message id="MESS_ROLE_ELECTRICAL_TILT">
        <source>Electrical tilt</source>
        <translation>Inclinaison électrique</translation>
    </message>
    <message id="MESS_ROLE_TILT">
        <source>Tilt</source>
        <translation>Inclinaison</translation>
    </message>
    <message id="MESS_ROLE_BEAM_WIDTH">
        <source>Beam width</source>
        <translation>Ouverture horizontale</translation>
    </message>
    <message id="MESS_ROLE_BAND">
        <source>Frequency band</source>
        <translation>Bande de fréquences</translation>
    </message>
    <message id="MESS_ROLE_FREQUENCY">
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message id="MESS_ROLE_TECHNOLOGY">
        <source>Technology</source>
        <translation>Technologie</translation>
    </message>
    <message id="MESS_ROLE_OPERATOR">
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message id="MESS_TAB_SHAPE_ROWS">
        <source>%1 rows, each of them a site</source>
        <translation>%1 lignes, chacune un site</translation>
    </message>
    <message id="MESS_TAB_SHAPE_NUMBERED">
        <source>%1 rows, each of them a site with up to %2 transmitters</source>
        <translation>%1 lignes, chacune un site avec au plus %2 émetteurs</translation>
    </message>
    <message id="MESS_TAB_SHAPE_LISTS">
        <source>%1 rows, each of them a site with up to %2 transmitters in lists</source>
        <translation>%1 lignes, chacune un site avec au plus %2 émetteurs dans des listes</translation>
    </message>
    <message id="MESS_TAB_SHAPE_TALL">
        <source>%1 rows: %2 sites with %3 transmitters each, grouped by "%4" and position</source>
        <translation>%1 lignes&#xa0;: %2 sites de %3 émetteurs chacun, groupées par «&#xa0;%4&#xa0;» et par position</translation>
    </message>
    <message id="MESS_TAB_SHAPE_PLACES">
        <source>%1 rows: %2 sites with %3 transmitters each, grouped by position</source>
        <translation>%1 lignes&#xa0;: %2 sites de %3 émetteurs chacun, groupées par position</translation>
    </message>
    <message id="MESS_TAB_TOTAL_ROW">
        <source>a row of sums is left out</source>
        <translation>une ligne de totaux est laissée de côté</translation>
    </message>
    <message id="MESS_TAB_KNOWN_TABLE">
        <source>the table has no header: its columns are taken as those of "%1" (%2)</source>
        <translation>le tableau n'a pas d'en-tête&#xa0;: ses colonnes sont prises pour celles de «&#xa0;%1&#xa0;» (%2)</translation>
    </message>
    <message id="MESS_TAB_COLUMNS_BY_VALUES">
        <source>the table has no header: its columns are taken by their values (%1)</source>
        <translation>le tableau n'a pas d'en-tête&#xa0;: ses colonnes sont reconnues à leurs valeurs (%1)</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_NO_HEADER">
        <source>no header; recognized by the values</source>
        <translation>pas d'en-tête&#xa0;; reconnue à ses valeurs</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SWAPPED_GLOBE">
        <source>longitude and latitude seem to be exchanged: %1 of %2 latitudes lie beyond 90 degrees</source>
        <translation>longitude et latitude semblent inversées (latitudes au-delà de 90 degrés&#xa0;: %1 sur %2)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SWAPPED">
        <source>the coordinates seem to be exchanged: in the other order, %1 of %2 positions lie in %3</source>
        <translation>les coordonnées semblent inversées (positions qui se trouvent dans %3 une fois échangées&#xa0;: %1 sur %2)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SWAPPED_ROWS">
        <source>coordinates seem to be exchanged in some rows: in the other order, they lie among the others (%1 of %2 positions, rows: %3)</source>
        <translation>les coordonnées de certaines lignes semblent inversées&#xa0;: dans l'autre ordre, elles se trouvent parmi les autres (positions&#xa0;: %1 sur %2, lignes&#xa0;: %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SIGN">
        <source>a sign seems to be lost in %1: with the opposite one, %2 of %3 positions lie in %4</source>
        <translation>un signe semble manquer dans %1 (positions qui se trouvent dans %4 avec le signe opposé&#xa0;: %2 sur %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_SIGN_ROWS">
        <source>a sign seems to be lost in some rows of %1: with the opposite one, they lie among the others (%2 of %3 positions, rows: %4)</source>
        <translation>un signe semble manquer à certaines lignes dans %1&#xa0;: avec le signe opposé, elles se trouvent parmi les autres (positions&#xa0;: %2 sur %3, lignes&#xa0;: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_DECIMAL">
        <source>the decimal mark seems to be misplaced in %1: times %2, %3 of %4 positions lie in %5</source>
        <translation>le séparateur décimal semble mal placé dans %1 (positions qui se trouvent dans %5 en multipliant par %2&#xa0;: %3 sur %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_DECIMAL_ROWS">
        <source>the decimal mark seems to be misplaced in some rows of %1: with another one, they lie among the others (%2 of %3 positions, rows: %4)</source>
        <translation>le séparateur décimal semble mal placé à certaines lignes dans %1&#xa0;: une fois déplacé, elles se trouvent parmi les autres (positions&#xa0;: %2 sur %3, lignes&#xa0;: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_THOUSANDS">
        <source>a separator of thousands seems to be read as the decimal mark in %1: at all %2 positions they lie below 1000 and have up to three decimals</source>
        <translation>un séparateur de milliers semble lu comme séparateur décimal dans %1&#xa0;: les valeurs des %2 positions sont inférieures à 1000 et ont au plus trois décimales</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_NOT_DEGREES">
        <source>the coordinates of %1 of %2 positions are too large for degrees, but the coordinate system counts in degrees</source>
        <translation>des coordonnées sont trop grandes pour des degrés, alors que le système de coordonnées est en degrés (positions&#xa0;: %1 sur %2)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_NOT_METERS">
        <source>the coordinates of %1 of %2 positions seem to be degrees, but the coordinate system counts in meters or feet</source>
        <translation>des coordonnées semblent être en degrés, alors que le système de coordonnées est en mètres ou en pieds (positions&#xa0;: %1 sur %2)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_UNDECLARED">
        <source>the coordinates are in meters, but the table declares no coordinate system</source>
        <translation>les coordonnées sont en mètres, mais le tableau ne déclare aucun système de coordonnées</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_OUTLIER">
        <source>far from all others: %1 of %2 positions, more than %3 km from the middle of the table (rows: %4)</source>
        <translation>loin de toutes les autres&#xa0;: %1 sur %2, à plus de %3 km du centre des sites du tableau (lignes&#xa0;: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_DUPLICATE">
        <source>site ids occur more than once: %1 of %2 sites share theirs (rows: %3)</source>
        <translation>des identifiants de site apparaissent plusieurs fois&#xa0;: %1 sites sur %2 partagent le leur (lignes&#xa0;: %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_STACKED">
        <source>many positions are the same point: %1 of %2 are %3 (rows: %4)</source>
        <translation>de nombreuses positions sont un seul et même point&#xa0;: %1 sur %2 se trouvent en %3 (lignes&#xa0;: %4)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_OUTSIDE">
        <source>outside the project's terrain: %1 of %2 positions (rows: %3)</source>
        <translation>positions hors du terrain du projet&#xa0;: %1 sur %2 (lignes&#xa0;: %3)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_TERRAIN">
        <source>the area of the project's terrain</source>
        <translation>la zone du terrain du projet</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_AREA">
        <source>the area of use of the coordinate system</source>
        <translation>la zone d'emploi du système de coordonnées</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_LONGITUDES">
        <source>the longitudes</source>
        <translation>les longitudes</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_LATITUDES">
        <source>the latitudes</source>
        <translation>les latitudes</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_EASTINGS">
        <source>the eastings</source>
        <translation>les abscisses (X)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_NORTHINGS">
        <source>the northings</source>
        <translation>les ordonnées (Y)</translation>
    </message>
    <message id="MESS_TAB_DOCTOR_COORDINATES">
        <source>both coordinates</source>
        <translation>les deux coordonnées</translation>
    </message>
    <message id="MESS_TAB_BAD_EXTENT">
        <source>the area "%1" is not west, south, east and north in degrees</source>
        <translation>la zone «&#xa0;%1&#xa0;» ne donne pas ouest, sud, est et nord en degrés</translation>
    </message>
    <message id="MESS_TAB_IN_SHEET">
        <source>in the sheet "%1": %2</source>
        <translation>dans la feuille «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_NO_SUCH_SITE">
        <source>the site "%1" is not in the table of sites: the transmitter is left out</source>
        <translation>le site «&#xa0;%1&#xa0;» n'est pas dans le tableau des sites&#xa0;: l'émetteur est laissé de côté</translation>
    </message>
    <message id="MESS_TAB_NO_SITE_NAMED">
        <source>the transmitter names no site: it is left out</source>
        <translation>l'émetteur ne nomme aucun site&#xa0;: il est laissé de côté</translation>
    </message>
    <message id="MESS_TAB_BARE_SITES">
        <source>sites without a transmitter: %1</source>
        <translation>sites sans émetteur&#xa0;: %1</translation>
    </message>
    <message id="MESS_TAB_IN_FILE">
        <source>in the file "%1": %2</source>
        <translation>dans le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_SECOND_FILE">
        <source>the file "%1" cannot be used: %2</source>
        <translation>le fichier «&#xa0;%1&#xa0;» n'est pas utilisable&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_NO_SECTORS">
        <source>no columns of transmitters with the ids or names of these sites were recognized</source>
        <translation>aucune colonne d'émetteurs avec les identifiants ou les noms de ces sites n'a été reconnue</translation>
    </message>
    <message id="MESS_TAB_SECTORS_NOT_USED">
        <source>the table has transmitters of its own: those in the file "%1" are not used</source>
        <translation>le tableau a ses propres émetteurs&#xa0;: ceux du fichier «&#xa0;%1&#xa0;» ne sont pas utilisés</translation>
    </message>
    <message id="MESS_TAB_ENDS_ONLY_NAMED">
        <source>the ends of the links are only named (%1; %2): their positions must stand in a table of sites, on another sheet of the workbook or in the file that SITES (--sites) names</source>
        <translation>les extrémités des liaisons sont seulement nommées (%1&#xa0;; %2)&#xa0;: leurs positions doivent se trouver dans un tableau de sites, sur une autre feuille du classeur ou dans le fichier que SITES (--sites) indique</translation>
    </message>
    <message id="MESS_TAB_NO_NAMED_SITES">
        <source>no sites with a position and an id or a name were recognized</source>
        <translation>aucun site avec une position et un identifiant ou un nom n'a été reconnu</translation>
    </message>
    <message id="MESS_TAB_NO_END_SITES">
        <source>the columns of the links name none of its sites</source>
        <translation>les colonnes des liaisons ne nomment aucun de ses sites</translation>
    </message>
    <message id="MESS_TAB_END_SITES_NOT_USED">
        <source>the links have the positions of their ends: the sites in the file "%1" are not used</source>
        <translation>les liaisons ont les positions de leurs extrémités&#xa0;: les sites du fichier «&#xa0;%1&#xa0;» ne sont pas utilisés</translation>
    </message>
    <message id="MESS_TAB_END_NOT_NAMED">
        <source>the end is not named</source>
        <translation>l'extrémité n'est pas nommée</translation>
    </message>
    <message id="MESS_TAB_END_UNKNOWN">
        <source>the site "%1" is not in the table of sites: the end has no position</source>
        <translation>le site «&#xa0;%1&#xa0;» n'est pas dans le tableau des sites&#xa0;: l'extrémité n'a pas de position</translation>
    </message>
    <message id="MESS_TAB_END_UNPLACED">
        <source>the site "%1" has no position in the table of sites</source>
        <translation>le site «&#xa0;%1&#xa0;» n'a pas de position dans le tableau des sites</translation>
    </message>
    <message id="MESS_TAB_END_AMBIGUOUS">
        <source>the name "%1" stands for several places in the table of sites: the end has no position</source>
        <translation>le nom «&#xa0;%1&#xa0;» désigne plusieurs lieux dans le tableau des sites&#xa0;: l'extrémité n'a pas de position</translation>
    </message>
    <message id="MESS_TAB_SHAPE_JOINED">
        <source>%1 rows: %2 sites with %3 transmitters each from another table</source>
        <translation>%1 lignes&#xa0;: %2 sites de %3 émetteurs chacun, pris dans un autre tableau</translation>
    </message>
    <message id="MESS_TAB_MAPPING_UNUSED">
        <source>the mapping file "%1" is not used: %2</source>
        <translation>le fichier de correspondance «&#xa0;%1&#xa0;» n'est pas utilisé&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_LARGE">
        <source>a mapping file has at most 4 MiB</source>
        <translation>un fichier de correspondance ne dépasse pas 4 Mio</translation>
    </message>
    <message id="MESS_TAB_MAPPING_JSON">
        <source>its JSON is not valid in line %1</source>
        <translation>son JSON n'est pas valide à la ligne %1</translation>
    </message>
    <message id="MESS_TAB_MAPPING_NONE">
        <source>it is not a mapping of columns</source>
        <translation>ce n'est pas une correspondance de colonnes</translation>
    </message>
    <message id="MESS_TAB_MAPPING_VERSION">
        <source>its version %1 is not known</source>
        <translation>sa version %1 est inconnue</translation>
    </message>
    <message id="MESS_TAB_MAPPING_KEY">
        <source>its entry "%1" is not known</source>
        <translation>son entrée «&#xa0;%1&#xa0;» est inconnue</translation>
    </message>
    <message id="MESS_TAB_MAPPING_VALUE">
        <source>its entry "%1" has a value that cannot be used</source>
        <translation>son entrée «&#xa0;%1&#xa0;» a une valeur inutilisable</translation>
    </message>
    <message id="MESS_ROLE_LINK_NAME">
        <source>Name of the link</source>
        <translation>Nom de la liaison</translation>
    </message>
    <message id="MESS_ROLE_DIAMETER">
        <source>Dish diameter</source>
        <translation>Diamètre de la parabole</translation>
    </message>
    <message id="MESS_ROLE_OFFSET_X">
        <source>Offset to the east</source>
        <translation>Décalage vers l'est</translation>
    </message>
    <message id="MESS_ROLE_OFFSET_Y">
        <source>Offset to the north</source>
        <translation>Décalage vers le nord</translation>
    </message>
    <message id="MESS_ROLE_LENGTH">
        <source>Path length</source>
        <translation>Longueur du trajet</translation>
    </message>
    <message id="MESS_ROLE_REPEATER">
        <source>Passive repeater</source>
        <translation>Répéteur passif</translation>
    </message>
    <message id="MESS_ROLE_OF_END">
        <source>%1, end %2</source>
        <translation>%1, extrémité %2</translation>
    </message>
    <message id="MESS_TAB_SHAPE_LINKS">
        <source>%1 rows, each of them a link with both ends</source>
        <translation>%1 lignes, chacune étant une liaison avec ses deux extrémités</translation>
    </message>
    <message id="MESS_TAB_SHAPE_NAMED_LINKS">
        <source>%1 rows, each of them a link between sites of another table</source>
        <translation>%1 lignes, chacune étant une liaison entre des sites d'un autre tableau</translation>
    </message>
    <message id="MESS_TAB_REPEATED_HEADER">
        <source>the row repeats the header</source>
        <translation>la ligne répète l'en-tête</translation>
    </message>
    <message id="MESS_TAB_SITE_UNPLACED">
        <source>the site "%1" has no position</source>
        <translation>le site «&#xa0;%1&#xa0;» n'a pas de position</translation>
    </message>
    <message id="MESS_TAB_READ_AS">
        <source>the coordinate "%1" is read as %2</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» est lue comme %2</translation>
    </message>
    <message id="MESS_TAB_READ_O">
        <source>the letter O in the coordinate "%1" is read as %2</source>
        <translation>la lettre O de la coordonnée «&#xa0;%1&#xa0;» est lue comme %2</translation>
    </message>
    <message id="MESS_TAB_LIST_LENGTH">
        <source>the list "%1" has %2 values for %3 transmitters: none of them is used</source>
        <translation>la liste «&#xa0;%1&#xa0;» a %2 valeurs pour %3 émetteurs&#xa0;: aucune n'est utilisée</translation>
    </message>
    <message id="MESS_TAB_DIAMETERS">
        <source>the dishes are drawn with the size that the layer states, not with the diameters in the table (%1)</source>
        <translation>les paraboles sont dessinées à la taille que donne la couche, et non aux diamètres du tableau (%1)</translation>
    </message>
    <message id="MESS_TAB_REPEATERS">
        <source>passive repeaters are not drawn: each link is a straight line between its ends (%1)</source>
        <translation>les répéteurs passifs ne sont pas dessinés&#xa0;: chaque liaison est une ligne droite entre ses extrémités (%1)</translation>
    </message>
    <message id="MESS_TAB_LENGTH_UNREADABLE">
        <source>the stated length "%1" cannot be read</source>
        <translation>la longueur indiquée «&#xa0;%1&#xa0;» ne peut pas être lue</translation>
    </message>
    <message id="MESS_TAB_MAPPING_ROLES">
        <source>the mapping file "%1" names roles that are not known: %2</source>
        <translation>le fichier de correspondance «&#xa0;%1&#xa0;» nomme des rôles inconnus&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_COLUMNS">
        <source>the mapping file "%1" names columns that the table does not have, so that their roles are recognized: %2</source>
        <translation>le fichier de correspondance «&#xa0;%1&#xa0;» nomme des colonnes que le tableau n'a pas, dont les rôles sont donc reconnus automatiquement&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_TWICE">
        <source>the mapping file "%1" names columns more than once, of which only the first role holds: %2</source>
        <translation>le fichier de correspondance «&#xa0;%1&#xa0;» nomme plusieurs fois des colonnes, dont seul le premier rôle vaut&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_MAPPING_HEADER">
        <source>the mapping file "%1" names header rows that the table does not have: the header is recognized</source>
        <translation>le fichier de correspondance «&#xa0;%1&#xa0;» nomme des lignes d'en-tête que le tableau n'a pas&#xa0;: l'en-tête est reconnu automatiquement</translation>
    </message>
    <message id="MESS_TAB_MAPPING_SHEET">
        <source>the mapping file "%1" names the sheet "%2", which the workbook does not have: the sheet is recognized</source>
        <translation>le fichier de correspondance «&#xa0;%1&#xa0;» nomme la feuille «&#xa0;%2&#xa0;», que le classeur n'a pas&#xa0;: la feuille est reconnue automatiquement</translation>
    </message>
    <message id="MESS_TAB_MAPPING_KIND">
        <source>it is for tables of the other kind</source>
        <translation>il est fait pour des tableaux de l'autre genre</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_STATED">
        <source>stated in %1</source>
        <translation>indiqué dans %1</translation>
    </message>
    <message id="MESS_ROW_COUNTS">
        <source>%1 = %2 used + %3 merged + %4 left out</source>
        <translation>%1 = %2 (utilisées) + %3 (fusionnées) + %4 (laissées de côté)</translation>
    </message>
    <message id="MESS_FATE_USED">
        <source>used</source>
        <translation>utilisée</translation>
    </message>
    <message id="MESS_FATE_MERGED">
        <source>merged</source>
        <translation>fusionnée</translation>
    </message>
    <message id="MESS_FATE_LEFT_OUT">
        <source>left out</source>
        <translation>laissée de côté</translation>
    </message>
    <message id="MESS_REPORT_ROW">
        <source>row</source>
        <translation>ligne</translation>
    </message>
    <message id="MESS_REPORT_FATE">
        <source>fate</source>
        <translation>sort</translation>
    </message>
    <message id="MESS_REPORT_SITE">
        <source>site or link</source>
        <translation>site ou liaison</translation>
    </message>
    <message id="MESS_REPORT_FIRST_ROW">
        <source>first row</source>
        <translation>première ligne</translation>
    </message>
    <message id="MESS_REPORT_REASON">
        <source>reason</source>
        <translation>motif</translation>
    </message>
    <message id="MESS_REPORT_COLUMNS">
        <source>columns</source>
        <translation>colonnes</translation>
    </message>
    <message id="MESS_REPORT_TABLE">
        <source>table</source>
        <translation>tableau</translation>
    </message>
    <message id="MESS_TAB_NO_END_X">
        <source>no columns with coordinates of both ends were recognized: the longitude or easting of end %1 is missing</source>
        <translation>aucune colonne avec les coordonnées des deux extrémités n'a été reconnue&#xa0;: la longitude ou l'abscisse de l'extrémité %1 manque</translation>
    </message>
    <message id="MESS_TAB_NO_END_Y">
        <source>no columns with coordinates of both ends were recognized: the latitude or northing of end %1 is missing</source>
        <translation>aucune colonne avec les coordonnées des deux extrémités n'a été reconnue&#xa0;: la latitude ou l'ordonnée de l'extrémité %1 manque</translation>
    </message>
    <message id="MESS_SAVE_REPORT">
        <source>Save the report...</source>
        <translation>Enregistrer le rapport...</translation>
    </message>
    <message id="MESS_SAVE_REJECTS">
        <source>Save the rows left out...</source>
        <translation>Enregistrer les lignes laissées de côté...</translation>
    </message>
    <message id="MESS_TIP_SAVE_REPORT">
        <source>Save what became of every row, with the reasons</source>
        <translation>Enregistrer ce que chaque ligne est devenue, avec les motifs</translation>
    </message>
    <message id="MESS_TIP_SAVE_REJECTS">
        <source>Save the rows that are left out, to correct them and open them again</source>
        <translation>Enregistrer les lignes laissées de côté, pour les corriger et les ouvrir de nouveau</translation>
    </message>
    <message id="MESS_ROWS_ARE">
        <source>Rows: %1</source>
        <translation>Lignes&#xa0;: %1</translation>
    </message>
    <message id="MESS_SECOND_ROWS_ARE">
        <source>Rows of %1: %2</source>
        <translation>Lignes de %1&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_EVIDENCE_UNIT">
        <source>%1; unit by the positions: %2</source>
        <translation>%1&#xa0;; unité d'après les positions&#xa0;: %2</translation>
    </message>
    <message id="MESS_TAB_CORRECTED">
        <source>repaired: the position "%1" is corrected to %2</source>
        <translation>réparé&#xa0;: la position «&#xa0;%1&#xa0;» est corrigée en %2</translation>
    </message>
    <message id="MESS_TAB_UNUSED_AZIMUTHS">
        <source>the azimuths in column "%1" are not used: the sectors have those in column "%2"</source>
        <translation>les azimuts de la colonne «&#xa0;%1&#xa0;» ne sont pas utilisés&#xa0;: les secteurs ont ceux de la colonne «&#xa0;%2&#xa0;»</translation>
    </message>
    <message id="MESS_TAB_UNFIT_AZIMUTHS">
        <source>the values in column "%1" are no azimuths in degrees: they are not used</source>
        <translation>les valeurs de la colonne «&#xa0;%1&#xa0;» ne sont pas des azimuts en degrés&#xa0;: elles ne sont pas utilisées</translation>
    </message>
    <message id="MESS_TAB_WHOLE_DEGREES">
        <source>the coordinates in columns "%1" and "%2" are whole degrees: their minutes and seconds may be missing</source>
        <translation>les coordonnées des colonnes «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» sont des degrés entiers&#xa0;: leurs minutes et secondes manquent peut-être</translation>
    </message>
    <message id="MESS_TAB_NOT_UTM">
        <source>the coordinate "%1" cannot be read: a position in a zone of UTM has an easting from 100 000 to 900 000 m and a northing up to 10 000 000 m</source>
        <translation>la coordonnée «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: une position dans un fuseau UTM a une abscisse de 100 000 à 900 000 m et une ordonnée d'au plus 10 000 000 m</translation>
    </message>
    <message id="MESS_TAB_NO_ZONE">
        <source>the zone "%1" cannot be used: UTM has the zones 1 to 60, with a letter for the band or the hemisphere</source>
        <translation>le fuseau «&#xa0;%1&#xa0;» ne peut pas être utilisé&#xa0;: UTM a les fuseaux 1 à 60, avec une lettre pour la bande ou l'hémisphère</translation>
    </message>
    <message id="MESS_TAB_UTM_NORTH">
        <source>the zones of UTM have no letter: they are taken as those of the northern hemisphere</source>
        <translation>les fuseaux UTM n'ont pas de lettre&#xa0;: ils sont pris pour ceux de l'hémisphère nord</translation>
    </message>
    <message id="MESS_TAB_UTM_SOUTH">
        <source>the zones of UTM have no letter: because of their northings, they are taken as those of the southern hemisphere</source>
        <translation>les fuseaux UTM n'ont pas de lettre&#xa0;: à cause de leurs ordonnées, ils sont pris pour ceux de l'hémisphère sud</translation>
    </message>
    <message id="MESS_TAB_GRID">
        <source>the column "%1" holds positions in the %2 grid, which are not read</source>
        <translation>la colonne «&#xa0;%1&#xa0;» contient des positions dans la grille %2, qui ne sont pas lues</translation>
    </message>
    <message id="MESS_ROLE_UTM_ZONE">
        <source>UTM zone</source>
        <translation>Fuseau UTM</translation>
    </message>
    <message id="MESS_TAB_HIDDEN_ROWS">
        <source>hidden rows are read like all others: %1 of them, the first of which is row %2</source>
        <translation>les lignes masquées sont lues comme les autres&#xa0;: %1 en tout, dont la première est la ligne %2</translation>
    </message>
    <message id="MESS_TAB_AZIMUTH_DIFFERS">
        <source>the stated azimuth of %1 degrees does not point to the other end, which lies at %2 degrees</source>
        <translation>l'azimut indiqué de %1 degrés ne vise pas l'autre extrémité, qui se trouve à %2 degrés</translation>
    </message>
    <message id="MESS_TAB_UNKNOWN_UNIT">
        <source>the unit "%1" is not known: the height is not used</source>
        <translation>l'unité «&#xa0;%1&#xa0;» n'est pas connue&#xa0;: la hauteur n'est pas utilisée</translation>
    </message>
    <message id="MESS_TAB_OTHER_SHEETS">
        <source>only the sheet "%1" is read: other sheets hold tables with the same columns (%2)</source>
        <translation>seule la feuille «&#xa0;%1&#xa0;» est lue&#xa0;: d'autres feuilles contiennent des tableaux avec les mêmes colonnes (%2)</translation>
    </message>
    <message id="MESS_TAB_UPWARD_TILTS">
        <source>all tilts in column "%1" are negative: the antennas point upwards</source>
        <translation>tous les tilts de la colonne «&#xa0;%1&#xa0;» sont négatifs&#xa0;: les antennes pointent vers le haut</translation>
    </message>
    <message id="MESS_TAB_LOST_DECIMALS">
        <source>the whole numbers in the columns "%1" and "%2" are read as degrees after division by %3</source>
        <translation>les nombres entiers des colonnes «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» sont lus comme des degrés après division par %3</translation>
    </message>
    <message id="MESS_TAB_DATUMS">
        <source>the column "%1" names several datums (%2): all positions are read as those of EPSG:%3</source>
        <translation>la colonne «&#xa0;%1&#xa0;» indique plusieurs systèmes géodésiques (%2)&#xa0;: toutes les positions sont lues comme celles de EPSG:%3</translation>
    </message>
    <message id="MESS_TAB_NORTH_X">
        <source>"%1" is read as northing and "%2" as easting, as in EPSG:%3: the positions could also be read the other way round</source>
        <translation>«&#xa0;%1&#xa0;» est lu comme l'ordonnée (nord) et «&#xa0;%2&#xa0;» comme l'abscisse (est), comme dans EPSG:%3&#xa0;: les positions pourraient aussi se lire dans l'autre sens</translation>
    </message>
    <message id="MESS_ROLE_SECOND">
        <source>Columns of the table "%1"</source>
        <translation>Colonnes du tableau «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="MESS_TAB_REPEATED_CELL">
        <source>the cell stands in a row above with the same values: it is drawn once</source>
        <translation>la cellule figure avec les mêmes valeurs dans une ligne au-dessus&#xa0;: elle n'est dessinée qu'une fois</translation>
    </message>
    <message id="MESS_CANT_READ_LAYER">
        <source>the layer cannot be read</source>
        <translation>la couche ne peut pas être lue</translation>
    </message>
</context>
</TS>
