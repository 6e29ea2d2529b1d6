#include "snapshot/SceneNoticeText.h"

#include "language/VltLanguageManager.h"

#include <QLocale>
#include <QRegularExpression>

#include <iterator>
#include <vector>

namespace vlt::snapshot {

namespace {

/// A text of the readers and the kinds of its values, in the order of their places: a count 'n', a
/// name 't', a reason 'r', which is a text itself.
struct SceneText
{
    const char *key;
    const char *pattern;
    const char *kinds = "";
};

constexpr SceneText Texts[] = {
    // buildings that are left out, or stand elsewhere
    {"MESS_SCENE_NO_HEIGHT", "%1 of %2 buildings are left out: no height in the field \"%3\"",
     "nnt"},
    {"MESS_SCENE_ZERO_HEIGHT",
     "%1 of %2 buildings are left out: a height of zero or less in the field \"%3\"", "nnt"},
    {"MESS_SCENE_NO_POLYGON", "%1 of %2 buildings are left out: no polygon with an area", "nn"},
    {"MESS_SCENE_NO_PLACE",
     "%1 of %2 buildings are left out: their place is none of their coordinate system", "nn"},
    {"MESS_SCENE_COINCIDENT", "%1 of %2 buildings have the same outline as another one", "nn"},
    {"MESS_SCENE_READ_PARTLY", "only the first %1 footprints can be read: %2", "nr"},
    {"MESS_SCENE_SHOWN_PARTLY", "only the first %1 footprints are shown: there are too many", "n"},
    {"MESS_SCENE_NO_TERRAIN", "the document names no terrain; the buildings stand at height 0"},
    {"MESS_SCENE_BAD_TERRAIN",
     "the terrain \"%1\" cannot be used (%2); the buildings stand at height 0", "tr"},
    {"MESS_SCENE_NO_GROUND",
     "the terrain has no height under any building; they stand at height 0"},
    {"MESS_SCENE_LOWEST_GROUND",
     "%1 of %2 buildings stand on the lowest ground: there is no terrain height under them", "nn"},

    // colours and images
    {"MESS_SCENE_NO_MAP", "the color map \"%1\" does not exist", "t"},
    {"MESS_SCENE_BAD_MAP", "the color map \"%1\" cannot be used (%2)", "tr"},
    {"MESS_SCENE_EMPTY_RASTER", "the raster \"%1\" has no values", "t"},
    {"MESS_SCENE_BAD_RASTER", "the raster \"%1\" cannot be used for colors (%2)", "tr"},
    {"MESS_SCENE_NO_VALUE", "%1 of %2 buildings have no value in the raster \"%3\"", "nnt"},
    {"MESS_SCENE_NO_COLORS", "\"%1\" tells no colors of buildings", "t"},
    {"MESS_SCENE_BAD_IMAGE", "the image \"%1\" is not shown (%2)", "tr"},
    {"MESS_SCENE_MORE_IMAGES", "%1 more images are not shown", "n"},

    // reasons
    {"MESS_SCENE_OTHER_COMPUTER", "not a file or folder of this computer"},
    {"MESS_SCENE_VIRTUAL_RASTER",
     "virtual rasters are not opened: convert this one with gdal_translate"},
    {"MESS_SCENE_VIRTUAL_VECTOR",
     "virtual vector files are not opened: convert this one with ogr2ogr"},
    {"MESS_SCENE_NOT_IN_FILE", "not in a file of this computer"},
    {"MESS_SCENE_NO_PART", "the file holds no such image"},
    {"MESS_TERRAIN_NOT_LOCAL", "no local file has this name"},
    {"MESS_TERRAIN_NOT_PLACED", "it has no band of heights, no place or no coordinate system"},
    {"MESS_TERRAIN_TOO_LARGE", "it is stored in blocks that are too large"},
    {"MESS_SCENE_NO_LOCAL_FILE", "there is no such local file"},
    {"MESS_SCENE_NO_WAY", "there is no way to its coordinate system"},
    {"MESS_SCENE_NO_WAY_FROM", "there is no way from the buildings' coordinate system to its own"},
    {"MESS_SCENE_NO_MAP_IN", "No color association found in %1", "t"},
    {"MESS_SCENE_NO_COLOR", "Unknown color : %1", "t"},
    {"MESS_SCENE_BAD_SHARE", "Wrong value for a percentage : %1", "t"},
    {"MESS_SCENE_LARGE_MAP", "%1 is too large for a color map", "t"},
    {"MESS_SCENE_NOT_ONE_BAND", "it has not one band"},
    {"MESS_SCENE_COMPLEX", "its values are complex numbers"},
    {"MESS_SCENE_BAD_NODATA", "the no-data value \"%1\" is no number", "t"},
    {"MESS_SCENE_NOT_PLACED", "it has no place"},
    {"MESS_SCENE_NO_BANDS", "it has no bands"},
    {"MESS_SCENE_WITHOUT_HEIGHT", "it has no height"},
    {"MESS_SCENE_SAME_HEIGHT", "another one has the same height"},
    {"MESS_SCENE_NO_FORMAT", "`%1' not recognized as a supported file format.", "t"},
    // the same of newer versions of the library
    {"MESS_SCENE_NO_FORMAT", "`%1' not recognized as being in a supported file format.", "t"},

    // footprints that cannot be read
    {"MESS_SCENE_NO_FOOTPRINTS", "there is no local file of footprints \"%1\"", "t"},
    {"MESS_SCENE_BAD_FOOTPRINTS", "the footprints \"%1\" cannot be read: %2", "tr"},
    {"MESS_SCENE_NO_LAYER", "the footprints have no layer \"%1\"", "t"},
    {"MESS_SCENE_NO_FIELD", "the footprints have no field \"%1\"", "t"},
    {"MESS_SCENE_NO_NUMBERS", "the field \"%1\" of the footprints holds no numbers", "t"},
    {"MESS_SCENE_NO_FRAME",
     "the coordinate system of the layer is neither projected nor geographic"},
    {"MESS_SCENE_NO_PROJECTION", "the coordinate system of the layer cannot be projected"},

    // layers and documents that are none
    {"MESS_SCENE_NO_FILE", "it is no file"},
    {"MESS_SCENE_UNREADABLE", "it cannot be read"},
    {"MESS_SCENE_LARGE_FILE", "it is too large for a file of its kind"},
    {"MESS_SCENE_NO_ROOT", "there is no element veltaroLayer"},
    {"MESS_SCENE_NO_KIND", "the kind of the layer is missing"},
    {"MESS_SCENE_BAD_KIND",
     "layers of the kind \"%1\" cannot be shown, only \"sites\", \"links\" "
     "and \"buildings\"",
     "t"},
    {"MESS_SCENE_NO_SOURCE", "the element source is missing or empty"},
    {"MESS_SCENE_LONG_SOURCE", "the element source is unreasonably long"},
    {"MESS_SCENE_NO_END", "the element %1 does not end", "t"},
    {"MESS_SCENE_OTHER_SOURCE", "the source \"%1\" does not start with \"%2\"", "tt"},
    {"MESS_SCENE_NO_DOCUMENT", "the building document \"%1\" does not exist", "t"},
    {"MESS_SCENE_OTHER_DOCUMENT", "it is no building document: it does not start with the element "
                                  "veltaroTexturedBuildings"},
    {"MESS_SCENE_NO_VALUE_END", "the value of %1 does not end", "t"},
    {"MESS_SCENE_BAD_NUMBER", "the %1 \"%2\" is no number of zero or more", "tt"},
    {"MESS_SCENE_NO_NUMBER", "the %1 \"%2\" is no number", "tt"},
    {"MESS_SCENE_BAD_MODE", "the texture mode \"%1\" is none of roofs, walls and storeys", "t"},
    {"MESS_SCENE_UNNAMED_FOOTPRINTS", "the document names no file of footprints"},
    {"MESS_SCENE_UNNAMED_FIELD", "the document names no field of heights"},
    {"MESS_SCENE_NO_TILES", "the tileSize is not more than zero"},
};

/// What finds a text, behind the name of a file or alone, and its values.
QRegularExpression expressionOf(const SceneText &text)
{
    QString form = QRegularExpression::escape(QString::fromUtf8(text.pattern));
    int place = 0;
    for (const char *kind = text.kinds; *kind; ++kind)
        form.replace(QStringLiteral("\\%%1").arg(++place),
                     *kind == 'n' ? QStringLiteral("([0-9]+)") : QStringLiteral("(.*)"));
    return QRegularExpression(QStringLiteral("\\A((?:/.*?: )?)") + form + QStringLiteral("\\z"),
                              QRegularExpression::DotMatchesEverythingOption);
}

const std::vector<QRegularExpression> &expressions()
{
    static const std::vector<QRegularExpression> all = [] {
        std::vector<QRegularExpression> list;
        for (const SceneText &text : Texts)
            list.push_back(expressionOf(text));
        return list;
    }();
    return all;
}

QString valueText(char kind, const QString &value)
{
    switch (kind) {
    case 'n':
        return QLocale(VltLanguageManager::getInstance().getCurrentLanguage().text)
            .toString(value.toLongLong());
    case 'r':
        return sceneNoticeText(value);
    default:
        return value;
    }
}

} // namespace

QString sceneNoticeText(const QString &english)
{
    for (std::size_t i = 0; i < std::size(Texts); ++i) {
        const QRegularExpressionMatch match = expressions()[i].match(english);
        if (!match.hasMatch())
            continue;
        const SceneText &text = Texts[i];
        QStringList values;
        for (const char *kind = text.kinds; *kind; ++kind)
            values << valueText(*kind, match.captured(static_cast<int>(values.size()) + 2));
        QString told = dico_label(text.key, text.pattern);
        // all at once: a value that itself holds "%2" stays as it is
        if (values.size() == 1)
            told = told.arg(values[0]);
        else if (values.size() == 2)
            told = told.arg(values[0], values[1]);
        else if (values.size() == 3)
            told = told.arg(values[0], values[1], values[2]);
        return match.captured(1) + told;
    }
    return english;
}

} // namespace vlt::snapshot
