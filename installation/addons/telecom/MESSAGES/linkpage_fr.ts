<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Colour button</name>
    <message id="MESS_COLOR_OF">
        <source>%1: %2</source>
        <extracomment>What a colour is for, and the colour.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message id="MESS_COLOR_TRANSPARENT">
        <source>%1, %2 % transparent</source>
        <extracomment>A colour, and how transparent it is.</extracomment>
        <translation>%1, transparent à %2&#xa0;%</translation>
    </message>
</context>
<context>
    <name>Add-link page</name>
    <message id="MESS_LINK_LAYER_TITLE">
        <source>Link layer</source>
        <translation>Couche de liaisons</translation>
    </message>
    <message id="MESS_LINK_FILE">
        <source>Link file</source>
        <translation>Fichier de liaisons</translation>
    </message>
    <message id="MESS_LINK_FILE2">
        <source>Links file to display</source>
        <translation>Fichier de liaisons à afficher</translation>
    </message>
    <message id="MESS_NO_LINK_DEFINED">
        <source>No links file defined.
Select the links file to display.</source>
        <translation>Aucun fichier de liaisons défini.
Choisissez le fichier de liaisons à afficher.</translation>
    </message>
    <message id="MESS_SELECT_LINK_FILE">
        <source>Select the link file to use</source>
        <translation>Choisir le fichier de liaisons à utiliser</translation>
    </message>
    <message id="MESS_LINK_FILES">
        <source>Link files</source>
        <translation>Fichiers de liaisons</translation>
    </message>
    <message id="MESS_PROJ_OF_THE_FILE">
        <source>Projection of the file</source>
        <translation>Projection du fichier</translation>
    </message>
    <message id="MESS_READING_LINKS">
        <source>Reading the link file...</source>
        <translation>Lecture du fichier de liaisons...</translation>
    </message>
    <message id="MESS_DRAG_ICON_LINK">
        <source>Drag this icon into
Veltaro Builder
to add the link layer
</source>
        <translation>Faites glisser cette icône
dans Veltaro Builder
pour ajouter la couche de liaisons
</translation>
    </message>
    <message id="MESS_DRAG_NAME_LINK">
        <source>Link layer to drag into the builder</source>
        <translation>Couche de liaisons à faire glisser dans Veltaro Builder</translation>
    </message>
    <message id="MESS_OWN_LINKS">
        <source>Links of the layer</source>
        <translation>Liaisons de la couche</translation>
    </message>
    <message id="MESS_TIP_OWN_LINKS">
        <source>Show the links of the layer just written</source>
        <translation>Voir les liaisons de la couche qui vient d'être écrite</translation>
    </message>
    <message id="MESS_LOADING_LINKS">
        <source>Loading the links...</source>
        <translation>Chargement des liaisons...</translation>
    </message>
</context>
<context>
    <name>Link panel</name>
    <message id="MESS_LINE_OF_SIGHT">
        <source>Line of sight</source>
        <translation>Ligne de visée</translation>
    </message>
    <message id="MESS_LINK_STYLE">
        <source>Line &amp;style</source>
        <translation>&amp;Style du trait</translation>
    </message>
    <message id="MESS_TIP_LINK_STYLE">
        <source>Representation of the line between the two antennas</source>
        <translation>Dessin de la ligne entre les deux antennes</translation>
    </message>
    <message id="MESS_STYLE_LINE">
        <source>Line</source>
        <extracomment>Same width in pixels at every distance.</extracomment>
        <translation>Trait</translation>
    </message>
    <message id="MESS_STYLE_TUBE">
        <source>Tube</source>
        <translation>Tube</translation>
    </message>
    <message id="MESS_STYLE_BAND">
        <source>Band</source>
        <extracomment>Flat, turned to the viewer.</extracomment>
        <translation>Bande</translation>
    </message>
    <message id="MESS_LINK_WIDTH">
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message id="MESS_TIP_LINK_WIDTH">
        <source>Width of the line: in pixels for a line, in metres for a tube or a band</source>
        <translation>Largeur de la ligne&#xa0;: en pixels pour un trait, en mètres pour un tube ou une bande</translation>
    </message>
    <message id="MESS_PIXELS">
        <source> px</source>
        <extracomment>Follows a number; keep the blank.</extracomment>
        <translation> px</translation>
    </message>
    <message id="MESS_LINK_COLOR">
        <source>&amp;Color</source>
        <translation>&amp;Couleur</translation>
    </message>
    <message id="MESS_TIP_LINK_COLOR">
        <source>Color of the line, also of links with an unknown clearance</source>
        <translation>Couleur de la ligne, y compris pour les liaisons dont le dégagement est inconnu</translation>
    </message>
    <message id="MESS_PURPOSE_LINK_COLOR">
        <source>Color of the links</source>
        <translation>Couleur des liaisons</translation>
    </message>
    <message id="MESS_FRESNEL_ZONE">
        <source>&amp;Fresnel zone</source>
        <translation>Zone de &amp;Fresnel</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_ZONE">
        <source>Draw an ellipsoid around the line of sight</source>
        <translation>Dessiner un ellipsoïde autour de la ligne de visée</translation>
    </message>
    <message id="MESS_ZONE_NUMBER">
        <source>&amp;Number of the zone</source>
        <translation>&amp;Numéro de la zone</translation>
    </message>
    <message id="MESS_TIP_ZONE_NUMBER">
        <source>The first zone carries most of the power</source>
        <translation>La première zone porte l'essentiel de la puissance</translation>
    </message>
    <message id="MESS_FRESNEL_COLOR">
        <source>C&amp;olor</source>
        <translation>C&amp;ouleur</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_COLOR">
        <source>Color of the ellipsoid</source>
        <translation>Couleur de l'ellipsoïde</translation>
    </message>
    <message id="MESS_PURPOSE_FRESNEL_COLOR">
        <source>Color of the Fresnel zones</source>
        <translation>Couleur des zones de Fresnel</translation>
    </message>
    <message id="MESS_FRESNEL_TRANSPARENCY">
        <source>&amp;Transparency of the ellipsoid</source>
        <translation>&amp;Transparence de l'ellipsoïde</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_TRANSPARENCY">
        <source>Transparency of the ellipsoid in per cent</source>
        <translation>Transparence de l'ellipsoïde en pour cent</translation>
    </message>
    <message id="MESS_CLEARANCE">
        <source>Clearance</source>
        <translation>Dégagement</translation>
    </message>
    <message id="MESS_FRESNEL_SHARE">
        <source>Free &amp;radius</source>
        <translation>&amp;Rayon à dégager</translation>
    </message>
    <message id="MESS_TIP_FRESNEL_SHARE">
        <source>Share of the radius of the first Fresnel zone that must be free for a clear link; the ellipsoid is drawn with the same share</source>
        <translation>Part du rayon de la première zone de Fresnel à dégager pour que la liaison soit dégagée&#xa0;; l'ellipsoïde est dessiné avec la même part</translation>
    </message>
    <message id="MESS_K_FACTOR">
        <source>&amp;k factor</source>
        <translation>Facteur &amp;k</translation>
    </message>
    <message id="MESS_TIP_K_FACTOR">
        <source>Effective radius of the earth divided by its real radius: the effect of refraction on the ray. 4/3 is the value of a standard atmosphere, smaller values are more cautious</source>
        <translation>Rayon effectif de la Terre divisé par son rayon réel : effet de la réfraction sur le faisceau. 4/3 correspond à une atmosphère standard, une valeur plus faible est plus prudente</translation>
    </message>
    <message id="MESS_COLOR_BY_CLEARANCE">
        <source>Color the lines by clear&amp;ance</source>
        <translation>Colorer les lignes selon le dég&amp;agement</translation>
    </message>
    <message id="MESS_TIP_COLOR_BY_CLEARANCE">
        <source>Clear, marginal and obstructed links each have their own color; the target project must have a terrain</source>
        <translation>Les liaisons dégagées, limites et obstruées prennent chacune leur couleur&#xa0;; le projet cible doit comporter un terrain</translation>
    </message>
</context>
<context>
    <name>Links of the table</name>
    <message id="MESS_LINK">
        <source>Link</source>
        <translation>Liaison</translation>
    </message>
    <message id="MESS_END_A">
        <source>End A</source>
        <translation>Extrémité A</translation>
    </message>
    <message id="MESS_END_B">
        <source>End B</source>
        <translation>Extrémité B</translation>
    </message>
    <message id="MESS_LENGTH_KM">
        <source>Length (km)</source>
        <translation>Longueur (km)</translation>
    </message>
    <message id="MESS_FREQUENCY_MHZ">
        <source>Frequency (MHz)</source>
        <translation>Fréquence (MHz)</translation>
    </message>
    <message id="MESS_VERDICT">
        <source>Clearance</source>
        <translation>Dégagement</translation>
    </message>
    <message id="MESS_WORST_POINT">
        <source>Worst point</source>
        <translation>Point le plus défavorable</translation>
    </message>
    <message id="MESS_WORST_FREE">
        <source>%1 km from A, %2 m free (%3 %)</source>
        <extracomment>Distance, free height, share of the zone.</extracomment>
        <translation>à %1 km de A, %2 m dégagés (%3&#xa0;%)</translation>
    </message>
    <message id="MESS_WORST_CUT">
        <source>%1 km from A, terrain %2 m above the line</source>
        <translation>à %1 km de A, visée %2 m sous le terrain</translation>
    </message>
    <message id="MESS_TIP_UNJUDGED">
        <source>The clearance of a link needs the positions and antenna heights of both ends, a frequency and the terrain under the whole path</source>
        <translation>Le dégagement d'une liaison se calcule avec la position et la hauteur d'antenne des deux extrémités, une fréquence et le terrain sous tout le trajet</translation>
    </message>
    <message id="MESS_VERDICT_COUNTS">
        <source>%1 clear, %2 marginal, %3 obstructed</source>
        <translation>trajets dégagés&#xa0;: %1, limites&#xa0;: %2, obstrués&#xa0;: %3</translation>
    </message>
    <message id="MESS_UNJUDGED_COUNT">
        <source>, %1 unknown</source>
        <extracomment>Follows MESS_VERDICT_COUNTS.</extracomment>
        <translation>, inconnus : %1</translation>
    </message>
    <message id="MESS_LINKS_NOT_JUDGED">
        <source>The clearance of the links is not known: %1</source>
        <translation>Le dégagement des liaisons est inconnu : %1</translation>
    </message>
    <message id="MESS_PROJECT_WITHOUT_TERRAIN">
        <source>the project has no terrain</source>
        <translation>le projet n'a pas de terrain</translation>
    </message>
    <message id="MESS_LINKS_PLACED">
        <source>links placed: %1 of %2</source>
        <translation>liaisons placées&#xa0;: %1 sur %2</translation>
    </message>
    <message id="MESS_NO_LINK_PLACED">
        <source>no link can be placed</source>
        <translation>aucune liaison ne peut être placée</translation>
    </message>
    <message id="MESS_COPY_ROWS">
        <source>&amp;Copy the rows</source>
        <translation>&amp;Copier les lignes</translation>
    </message>
    <message id="MESS_TIP_LINK_DETAILS">
        <source>Show the recognised columns, the rows with problems and the clearance of every link</source>
        <translation>Montrer les colonnes reconnues, les lignes qui posent problème et le dégagement de chaque liaison</translation>
    </message>
    <message id="MESS_PROFILE">
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message id="MESS_TIP_PROFILE">
        <source>Show the path of the selected link over the terrain</source>
        <translation>Montrer le trajet de la liaison choisie au-dessus du terrain</translation>
    </message>
    <message id="MESS_PROFILE_READING">
        <source>Reading the terrain...</source>
        <translation>Lecture du terrain...</translation>
    </message>
    <message id="MESS_PROFILE_OF">
        <source>Profile of %1</source>
        <translation>Profil de %1</translation>
    </message>
    <message id="MESS_COPY_PROFILE">
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message id="MESS_TIP_COPY_PROFILE">
        <source>Copy the profile as a picture and its figures as text</source>
        <translation>Copier le profil comme image et ses chiffres comme texte</translation>
    </message>
    <message id="MESS_SAVE_PROFILE">
        <source>Save as...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message id="MESS_TIP_SAVE_PROFILE">
        <source>Save the profile as an SVG or PNG picture</source>
        <translation>Enregistrer le profil comme image SVG ou PNG</translation>
    </message>
    <message id="MESS_SAVE_PROFILE_TITLE">
        <source>Save the profile as</source>
        <translation>Enregistrer le profil sous</translation>
    </message>
    <message id="MESS_CANT_SAVE_PROFILE">
        <source>The profile cannot be saved</source>
        <translation>Le profil ne peut pas être enregistré</translation>
    </message>
</context>
</TS>
