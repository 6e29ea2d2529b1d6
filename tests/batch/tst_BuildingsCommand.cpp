#include "ProgramRun.h"
#include "support/Cases.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

using namespace Qt::StringLiterals;

namespace {

/// Houses of 10 m, 10.5 m and 12 m, between 2 and 2.004 degrees east, 45 and 45.001
/// north.
const QByteArray Houses =
    R"({"type":"FeatureCollection","name":"houses","features":[
{"type":"Feature","properties":{"id":1,"USE":"home","height":10,"day":"2024/01/31"},"geometry":{"type":"Polygon",
"coordinates":[[[2,45],[2.001,45],[2.001,45.001],[2,45.001],[2,45]]]}},
{"type":"Feature","properties":{"id":2,"USE":"home","height":10.5},"geometry":{"type":"Polygon",
"coordinates":[[[2.003,45],[2.004,45],[2.004,45.001],[2.003,45.001],[2.003,45]]]}},
{"type":"Feature","properties":{"id":3,"USE":"barn","height":12},"geometry":{"type":"Polygon",
"coordinates":[[[2.002,45],[2.0025,45],[2.0025,45.001],[2.002,45]]]}}]})";

/// One house with other properties.
QByteArray house(const QByteArray &properties)
{
    return R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":)" +
           properties + R"(,"geometry":{"type":"Polygon",
"coordinates":[[[2,45],[2.001,45],[2.001,45.001],[2,45.001],[2,45]]]}}]})";
}

/// Four by four cells around the houses; one of them has no value.
const QByteArray Grid = "ncols 4\nnrows 4\nxllcorner 1.99\nyllcorner 44.99\ncellsize 0.01\n"
                        "NODATA_value -9999\n"
                        "-120 -110 -100 -9999\n-90 -80 -70 -60\n-90 -80 -70 -60\n-90 -80 -70 -60\n";

const QString Common = u"buildings ../houses.geojson --dtm ../dem.asc -o o.lay "_s;

} // namespace

class tst_BuildingsCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<ProgramRun>();
        const QString telecom = path(u"install dir/addons/telecom/"_s);
        QVERIFY(QFile::link(u"" VLT_INSTALLATION "/addons/telecom/template"_s,
                            telecom + u"template"_s));
        writeFile(telecom + u"colormaps/a/first.txt"_s, "0 blue\n100 red\n");
        writeFile(telecom + u"colormaps/b/level_dBm.cmap"_s, "nv grey\n-120 blue\n-60 red\n");
        writeFile(path(u"own.txt"_s), "-120 green\n-60 white\n");
        writeFile(path(u"broken.txt"_s), "-120 pink\n");
        writeFile(path(u"houses.geojson"_s), Houses);
        writeFile(path(u"beyond.geojson"_s), house(R"({"osm_id":123456789012,"width":10})"));
        writeFile(path(u"behind.geojson"_s), house(R"({"osm_id":123456789012,"H":10})"));
        writeFile(path(u"beside.geojson"_s),
                  house(R"({"osm_id":123456789012,"height":10,"levels":3})"));
        writeFile(path(u"dem.asc"_s), Grid);
        writeFile(path(u"rgb.ppm"_s), "P6\n1 1\n255\nabc");
        writeFile(path(u"level.asc"_s), Grid);
        for (const char *image : {"t/c_6m.asc", "t/c_1.5m.asc", "t/c.asc", "t/net/c_9m.asc"})
            writeFile(path(QLatin1String(image)), Grid);
        writeFile(path(u"city.gvw"_s), "DEM Layers\n Files : dem.asc\n\nVector layer\n File : "
                                       "houses.geojson\n Layer name : buildings\n");
        writeFile(path(u"bare.gvw"_s), "DEM Layers\n Files : dem.asc\n");
        writeFile(path(u"elsewhere/old.lay"_s), "old");
        writeFile(path(u"elsewhere/old.texb"_s), "old");
    }

    void writesDocuments_data()
    {
        // fragments: "@" means the folder of the inputs
        const Cases<QString, QStringList> row({"options", "fragments"});
        row("coloured, first run", "--image ../level.asc",
            {u"filename=\"@/houses.geojson\"\n    layer=\"houses\"\n"
             "    hfield=\"height\"\n    tileSize=\"250\"\n"
             "    extrudedVisibility=\"2000\"\n    wallColor=\"IMAGE;@/level.asc;"
             "@/install dir/addons/telecom/colormaps/a/first.txt;minimum;stretched;"
             "interpolation\"\n    skirtHeight=\"5\"\n    checkClockwise=\"false\""_s,
             u"filename=\"@/dem.asc\"\n    nodata=\"-9999.000000\"\n"_s});
        row("coloured, all options",
            "--image ../level.asc --image-nodata -60 --colormap LEVEL_dbm --absolute "
            "--color-ranges --mode most-represented --layer HOUSES --height-field ID "
            "--dtm-nodata 7 --distance 900 --tile-size 62.5 --skirt 0 --check-clockwise",
            {u"hfield=\"id\"\n    tileSize=\"62.5\"\n    extrudedVisibility=\"900\""_s,
             u"colormaps/b/level_dBm.cmap;mostRepresented;absolute;colorrange;-60\""_s,
             u"skirtHeight=\"0\"\n    checkClockwise=\"true\""_s, u"nodata=\"7\""_s});
        row("colour map of the user, empty no-data",
            "--image ../level.asc --colormap ../own.txt --mode mostRepresented --dtm-nodata=",
            {u"level.asc;@/own.txt;mostRepresented;stretched;"_s, u"nodata=\"\""_s});
        const QString image = u"--image ../level.asc "_s;
        const QString elevation = u"nodata=\"-9999.000000\"\n  />\n"_s;
        row("heights, all options",
            image + u"--height-unit levels --height-factor 1.5 --level-height 2.8 --else-field ID "
                    "--else-unit ft --default-height 6 --height-reference sea --base field "
                    "--base-field ID --bottom-field id --where USE<>'home'"_s,
            {elevation + u"  <heights \n    unit=\"levels\"\n    factor=\"1.5\"\n"
                         "    levelHeight=\"2.8\"\n    elseField=\"id\"\n    elseUnit=\"ft\"\n"
                         "    default=\"6\"\n    reference=\"sea\"\n    base=\"field\"\n"
                         "    baseField=\"id\"\n    bottomField=\"id\"\n"
                         "    where=\"USE%3C%3E'home'\"\n  />\n"_s});
        row("heights, the defaults in words",
            image + u"--height-unit m --height-factor 1 --base mean"_s,
            {elevation + u"</veltaroTexturedBuildings>"_s});
        addRowsWithStyle(row);
    }

    void writesDocuments()
    {
        QFETCH(QString, options);
        QFETCH(QStringList, fragments);

        const Run run = start(Common + options);

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.status, 0);
        const QString document = QString::fromUtf8(readFile(path(u"elsewhere/o.texb"_s)));
        for (QString &fragment : fragments) {
            fragment.replace(QLatin1Char('@'), path({}));
            QVERIFY2(document.contains(fragment), qPrintable(fragment + document));
        }
    }

    void reportsWhatItWrote()
    {
        const Run run = start(
            u"buildings --project ../city.gvw --image ../level.asc -o o.lay --json --language fr"_s);

        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        const QString folder = path(u"elsewhere/"_s);
        QCOMPARE(reported.value(u"layer"_s).toString(), folder + u"o.lay"_s);
        QCOMPARE(reported.value(u"document"_s).toString(), folder + u"o.texb"_s);
        QCOMPARE(reported.value(u"subtype"_s).toString(), u"rf_colored_buildings"_s);
        QCOMPARE(reported.value(u"vector"_s).toString(), path(u"houses.geojson"_s));
        QCOMPARE(reported.value(u"buildings"_s).toInt(), 3);
        QVERIFY(!reported.contains(u"textures"_s));
        const QByteArray layer = readFile(folder + u"o.lay"_s);
        QCOMPARE(element(layer, "source"), "TEXB:" + folder.toUtf8() + "o.texb");
        QVERIFY(layer.contains("<xCenter>2.002</xCenter>\n  <yCenter>45.0005</yCenter>"));
        const QString legend = reported.value(u"legend"_s).toString();
        QCOMPARE(legend, folder + u"first_gradient.png"_s);
        QVERIFY(element(layer, "description").contains(legend.toUtf8()));
        QVERIFY(QImage(legend).height() > 200);
    }

    void countsWhatIsDrawn()
    {
        const QString start = u"buildings ../other.geojson --dtm ../dem.asc -o o.lay --json "
                              "--height-field height --image ../level.asc"_s;
        writeFile(path(u"other.geojson"_s), QByteArray(Houses).replace("12}", "null}"));
        const Run some = this->start(start);
        const QByteArray description = element(readFile(path(u"elsewhere/o.lay"_s)), "description");
        const Run substituted = this->start(start + u" --default-height 6"_s);
        writeFile(path(u"other.geojson"_s), house(R"({"height":0})"));
        QVERIFY(QFile::remove(path(u"elsewhere/o.lay"_s)));
        const Run none = this->start(start);

        const QByteArray notice =
            "1 of 3 buildings are left out: no height in the field \"height\"";
        QCOMPARE(some.errors, "vltlayers: " + notice + "\n");
        QVERIFY2(description.contains("<p>Buildings: 2, left out: 1<br/>1 of 3 buildings are left"),
                 description.constData());
        const QJsonObject reported = QJsonDocument::fromJson(some.output).object();
        QCOMPARE(reported.value(u"features"_s).toInt(), 3);
        QCOMPARE(reported.value(u"buildings"_s).toInt(), 2);
        QCOMPARE(reported.value(u"leftOut"_s).toObject(), (QJsonObject{{u"missingHeight"_s, 1}}));
        QCOMPARE(reported.value(u"warnings"_s).toArray(), QJsonArray{QString::fromUtf8(notice)});
        const QJsonObject other = QJsonDocument::fromJson(substituted.output).object();
        QCOMPARE(other.value(u"buildings"_s).toInt(), 3);
        QCOMPARE(other.value(u"substitutes"_s).toObject(), (QJsonObject{{u"defaultHeight"_s, 1}}));
        QCOMPARE(none.status, 1);
        QVERIFY2(none.errors.contains("no building can be drawn: 1 of 1"), none.errors.constData());
        QVERIFY(!QFile::exists(path(u"elsewhere/o.lay"_s)));
    }

    void takesABandOfTheRaster()
    {
        writeFile(path(u"bands.hdr"_s),
                  "ENVI\nsamples = 1\nlines = 1\nbands = 2\ndata type = 1\ninterleave = bsq\n"
                  "map info = {Geographic Lat/Lon, 1, 1, 1.9, 45.1, 1, 1, WGS-84}\n"
                  "band names = {level, quality}\n");
        writeFile(path(u"bands.img"_s), QByteArray("\x05\x07", 2));
        const QString start = Common + u"--image ../bands.img --absolute"_s;
        const Run first = this->start(start);
        const QByteArray plain = readFile(path(u"elsewhere/o.texb"_s));
        const Run second = this->start(start + u" --band 2"_s);
        const Run third = this->start(start + u" --band 3"_s);

        QVERIFY2(first.errors.endsWith("--band chooses another one: 1 (level); 2 (quality)\n"),
                 first.errors.constData());
        QVERIFY(!plain.contains("<colors"));
        QVERIFY2(second.errors.contains("other programs"), second.errors.constData());
        QVERIFY(readFile(path(u"elsewhere/o.texb"_s)).contains("<colors \n    band=\"2\"\n  />"));
        QCOMPARE(third.status, 1);
        QVERIFY2(third.errors.contains("it has no band 3"), third.errors.constData());
    }

    void stretchesOverOtherValues_data()
    {
        const Cases<QString, QByteArray, QByteArray> row({"stretch", "first", "last"});
        row("range", "--stretch range=-110,-62.5", "-110", "-62.5");
        // 15 values from -120 to -60
        row("percentiles", "--stretch percentile=10-85.5", "-110", "-60");
        row("houses", "--stretch buildings", "-80", "-80");
        row("other rasters", "--stretch with=../t/low.asc --stretch with=../t/high.asc", "-500",
            "7");
    }

    void stretchesOverOtherValues()
    {
        QFETCH(QString, stretch);
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, last);
        writeFile(path(u"t/low.asc"_s), QByteArray(Grid).replace("-120", "-500"));
        writeFile(path(u"t/high.asc"_s), QByteArray(Grid).replace("-110", "7"));

        const Run run = start(Common + u"--image ../level.asc --colormap ../own.txt "_s + stretch);

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(readFile(path(u"elsewhere/o_own.cmap"_s)),
                 first + " 0 255 0 255\n" + last + " 255 255 255 255\n");
        const QByteArray document = readFile(path(u"elsewhere/o.texb"_s));
        QVERIFY2(document.contains("/elsewhere/o_own.cmap;minimum;absolute;interpolation\""),
                 document.constData());
        QVERIFY(QFile::exists(path(u"elsewhere/own_gradient.png"_s)));
    }

    void advisesOtherHeights()
    {
        const QString start = u"buildings ../other.geojson --dtm %1 -o o.lay --image ../level.asc "
                              "--height-field height "_s;
        writeFile(path(u"other.geojson"_s), house(R"({"height":null,"levels":3,"min_height":2})"));
        const Run none = this->start(start.arg(u"../dem.asc"_s));
        const Run filled = this->start(start.arg(u"../dem.asc"_s) + u"--else-field levels"_s);

        QCOMPARE(none.status, 1);
        QVERIFY2(none.errors.endsWith("; 1 of 1 buildings have no height in \"height\"; \"levels\" "
                                      "would give it for 1 of them (--else-field \"levels\")\n"),
                 none.errors.constData());
        QCOMPARE(filled.status, 0);

        QByteArrayList roofs;
        for (int i = 0; i < 10; ++i)
            roofs << house("{\"height\":" + QByteArray::number(290 + i) + "}").mid(40).chopped(2);
        writeFile(path(u"other.geojson"_s), house({}).left(40) + roofs.join(',') + "]}");
        writeFile(path(u"high.asc"_s), QByteArray(Grid).replace("-", "2"));
        const QString above = start.arg(u"../high.asc"_s);
        const QByteArray advice = "above sea level (--height-reference sea)";
        QVERIFY(this->start(above).errors.contains(advice));
        for (const auto &stated : {u"sea"_s, u"ground"_s})
            QVERIFY(
                !this->start(above + u"--height-reference "_s + stated).errors.contains(advice));
    }

    void colorsByAField_data()
    {
        const Cases<QString, QString, QByteArray> row({"options", "colors", "map"});
        row("texts", "--color-field use", u"field=\"USE\"\n    mode=\"distinct\"\n"_s, {});
        row("numbers", "--color-field height --colormap ../own.txt",
            u"field=\"height\"\n    map=\"@/elsewhere/o_own.cmap\"\n"_s,
            "10 0 255 0 255\n12 255 255 255 255\n");
        row("percentiles", "--color-field height --colormap ../own.txt --stretch percentile=0-60",
            u"field=\"height\"\n    map=\"@/elsewhere/o_own.cmap\"\n"_s,
            "10 0 255 0 255\n10.5 255 255 255 255\n");
        row("absolute ranges",
            "--color-field height --absolute --color-ranges --colormap level_dbm",
            u"field=\"height\"\n    map=\"@/install "
            u"dir/addons/telecom/colormaps/b/level_dBm.cmap\"\n"
            "    mode=\"colorrange\"\n"_s,
            {});
    }

    void colorsByAField()
    {
        QFETCH(QString, options);
        QFETCH(QString, colors);
        QFETCH(QByteArray, map);

        const Run run = start(Common + options + u" --json"_s);

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(QFile::exists(path(u"elsewhere/o_own.cmap"_s)), !map.isEmpty());
        if (!map.isEmpty())
            QCOMPARE(readFile(path(u"elsewhere/o_own.cmap"_s)), map);
        const QString document = QString::fromUtf8(readFile(path(u"elsewhere/o.texb"_s)));
        QVERIFY2(
            document.contains(u"  <colors \n    "_s + colors.replace(u'@', path({})) + u"  />\n"_s),
            qPrintable(document));
        QVERIFY(document.contains(u"wallColor=\"#d9d4c7\"\n    roofColor=\"#b5634c\""_s));
        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(reported.value(u"subtype"_s).toString(), u"rf_colored_buildings"_s);
        QVERIFY(QImage(reported.value(u"legend"_s).toString()).height() > 40);
    }

    void warnsOfImages_data()
    {
        const Cases<QString, QByteArray, int> row({"options", "warning", "images"});
        row("one without height", "--textures ../t/c.asc",
            "vltlayers: images without a stated height, 0 m is used: 1\n", 3);
        row("none", {},
            "vltlayers: the buildings have no images: neither --texture nor --textures is given\n",
            0);
    }

    void warnsOfImages()
    {
        QFETCH(QString, options);
        QFETCH(int, images);

        const Run run = start(Common + options + u" --json"_s);
        const Run quiet = start(Common + options + u" --quiet"_s);

        QTEST(run.errors, "warning");
        QCOMPARE(quiet.errors, QByteArray());
        QCOMPARE(QJsonDocument::fromJson(run.output).object().value(u"textures"_s).toInt(-1),
                 images);
        QCOMPARE(readFile(path(u"elsewhere/o.texb"_s)).count("<texture "), images);
    }

    void selectsTheHeightFieldOfTheWizard()
    {
        const QString start = u"buildings ../beside.geojson --dtm ../dem.asc -o o.lay --json "_s;
        const Run run = this->start(start + u"--image ../level.asc"_s);
        const Run chosen = this->start(start + u"--image ../level.asc --height-field levels"_s);

        const QString field = u"The field \"height\" probably has the heights."_s;
        const QString unit = u"The values of \"levels\" are taken as levels of 3 m; --height-unit "
                             "states another unit."_s;
        const QByteArray line = "vltlayers: " + unit.toUtf8() + "\n";
        QCOMPARE(run.errors, "vltlayers: " + field.toUtf8() + "\n" + line);
        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(reported.value(u"heightField"_s).toString(), u"levels"_s);
        QCOMPARE(reported.value(u"warnings"_s).toArray(), (QJsonArray{field, unit}));
        QCOMPARE(chosen.errors, line);
        const Run named = this->start(
            u"buildings ../behind.geojson --dtm ../dem.asc -o o.lay --image ../level.asc"_s);
        QCOMPARE(named.errors, "vltlayers: The field \"H\" probably has the heights.\n");
        QCOMPARE(named.status, 0);
    }

    void refusesAndWritesNothing_data()
    {
        // text after "buildings "; "%" means the two inputs
        const Refusals row;
        row("../no.shp --dtm ../dem.asc --image ../level.asc", 1,
            "../no.shp: This file can't be open as a vector file");
        row("../houses.geojson --dtm ../own.txt --image ../level.asc", 1,
            "../own.txt: Cannot open DTM");
        row("--project ../bare.gvw --image ../level.asc", 1, "the project names no buildings");
        row("% --image ../level.asc --layer streets", 1, "\"streets\"; the layers are: houses");
        row("% --image ../level.asc --height-field AGL", 1,
            "\"AGL\"; the fields are: id, USE, height");
        row("../beyond.geojson --dtm ../dem.asc", 1,
            "../beyond.geojson: no field with the heights was found: give its name with "
            "--height-field; the fields are: osm_id, width");
        row("% --image ../level.asc --else-field AGL", 1, "there is no field of heights \"AGL\"");
        row("% --where id>", 1, "id>: this condition cannot be used (");
        row("% --where id>9", 1, "id>9: no feature meets this condition");
        row("% --else-unit m", 2, "--else-unit needs --else-field");
        row("% --base field", 2, "--base field needs --base-field");
        row("% --base-field id", 2, "--base-field needs --base field");
        row("% --base lowest", 2, "mean|minimum|maximum|field|zero");
        row("% --default-height 0", 2, "0.1 to 10000");
        row("% --image ../own.txt", 1, "../own.txt: This file can't be open as a raster dataset (");
        row("% --image /vsicurl/http://example.org/a.tif", 1, "a.tif: no such file");
        row("% --image ../rgb.ppm", 1, "works only with one-band grey images");
        row("% --image ../level.asc --colormap nice", 1,
            "nice: there is no color map and no file with this name; the color maps are: first, "
            "level_dBm");
        row("% --image ../level.asc --colormap ../broken.txt", 1, "Unknown color : pink");
        row("% --texture ../t/c.asc", 1, "../t/c.asc: the height of this image is not known");
        row("% --texture ../t/no.asc=5", 1, "../t/no.asc: no such file");
        row("% --texture ../own.txt=5", 1, "can't be open as a raster dataset");
        row("% --texture ../t/c.asc=abc", 1, "../t/c.asc=abc: the height is not a number");
        row("% --image ../level.asc -o -", 2, "must be a file");
        row("% --texture ../t/c.asc=nan", 1, "../t/c.asc: the height is not a number");
        row("% --textures ../t/no.asc", 1, "../t/no.asc: no such file");
        row("% --textures ../t/c.asc --filter xyz", 1, "../t/c.asc: no image of its set was found");
        row("% --image ../level.asc -o ../houses.geojson", 1, "one of the input files");
        row("% --image ../level.asc -o no/o.lay", 1, "Can't create the layer file");
        row("../houses.geojson --image ../level.asc", 2, "no terrain given (--dtm)");
        row("--dtm ../dem.asc --image ../level.asc", 2, "no vector file given");
        row("% --wall-color colormap", 2, "needs --image");
        row("% --image ../level.asc --roof-color fff000", 2, "--roof-color colormap");
        row("% --image ../level.asc --cache all", 2, "--cache cannot be used when --image");
        row("% --textured-distance 500", 2, "--textured-distance needs --texture");
        row("% --mode average --textures ../t/c.asc", 2, "--mode needs --image");
        row("% --image ../level.asc --texture-on walls", 2, "--texture-on needs --texture");
        row("% --texture ../t/c.asc=1 --structure two-levels", 2, "--structure needs --textures");
        row("% --texture ../t/c.asc=1 --textures ../t/c.asc", 2, "cannot be combined");
        row("% --texture ../t/c.asc=1 --wall-color colormap", 2, "needs --image");
        row("% --texture ../t/c.asc=1 --image ../level.asc", 2, "--roof-color colormap");
        row("% --texture ../t/c.asc=1 --delayed-write", 2, "--delayed-write needs --cache");
        row("% --texture ../t/c.asc=1 --wall-color reddish", 2, "red or the word colormap");
        row("% --texture ../t/c.asc=1 --edge-color colormap", 2, "--edge-color is RRGGBB or");
        row("% --texture ../t/c.asc=1 --magnify cubic", 2, "none|linear");
        row("% --image ../level.asc --stretch range=5,5", 2,
            "--stretch is raster|percentile=2-98|buildings|range=MIN,MAX|with=FILE");
        row("% --image ../level.asc --stretch percentile=2-101", 2, "--stretch is");
        row("% --image ../level.asc --stretch with=../no.tif", 1, "../no.tif: no such file");
        row("% --image ../level.asc --stretch with=../own.txt", 1,
            "can't be open as a raster dataset");
        row("% --image ../level.asc --absolute --stretch raster", 2, "cannot be combined");
        row("% --color-field WIDTH", 1,
            "there is no field \"WIDTH\" of numbers or texts; the fields are: id, USE, height");
        row("% --color-field id --image ../level.asc", 2, "--image and --color-field cannot");
        row("% --color-field id --mode average", 2, "--mode needs --image");
        row("% --color-field id --stretch with=../level.asc", 2, "--stretch with needs --image");
        row("% --stretch buildings", 2, "--stretch needs --image or --color-field");
        row("% --band 2", 2, "--band needs --image");
        row("% --image ../level.asc --band 0", 2, "--band is the number of a band");
        row("% --image ../level.asc --mode middle", 2, "minimum|maximum|average|most-represented");
        row("% --image ../level.asc --image-nodata void", 2, "--image-nodata is a number");
        row("% --image ../level.asc --distance 99", 2, "100 to 100000");
        row("% --image ../level.asc --tile-size nan", 2, "--tile-size");
    }

    void refusesAndWritesNothing()
    {
        QString arguments = QString::fromUtf8(QTest::currentDataTag());
        arguments.replace(u"%"_s, u"../houses.geojson --dtm ../dem.asc"_s);
        if (!arguments.contains(u" -o "_s))
            arguments += u" -o old.lay"_s;

        m_program->checkRefusal(u"buildings "_s + arguments);
    }

    void overwritesNoInputByDocumentOrLegend_data()
    {
        const Cases<QString> row({"image"});
        row("document", "o.texb");
        row("own color map", "o_first.cmap");
        row("legend", "first_gradient.png");
    }

    void overwritesNoInputByDocumentOrLegend()
    {
        QFETCH(QString, image);
        writeFile(path(u"elsewhere/"_s + image), Grid);

        const Run run = start(Common + u"--stretch buildings --image "_s + image);

        QCOMPARE(run.status, 1);
        QVERIFY2(run.errors.contains("one of the input files"), run.errors.constData());
        QCOMPARE(readFile(path(u"elsewhere/"_s + image)), Grid);
    }

private:
    /// Adds rows with documents in which buildings have more than the image's colours.
    static void addRowsWithStyle(const Cases<QString, QStringList> &row)
    {
        row("textured, first run", "--textures ../t/c_6m.asc --filter m",
            {u"<veltaroTexturedBuildings \n  cache=\"none\">"_s,
             u"texturedVisibility=\"2000\"\n    wallColor=\"#d9d4c7\"\n"
             "    roofColor=\"#b5634c\"\n"_s,
             u"mode=\"roofs\"\n    edgeColor=\"#404040\"\n"
             "    forceEdgeCreation=\"false\"\n"
             "    processComplexBuildings=\"true\"\n    magFilter=\"none\"\n  >\n"
             "    <texture \n      filename=\"@/t/c_1.5m.asc\"\n"
             "      height=\"1.5\"\n    />\n    <texture \n"
             "      filename=\"@/t/c_6m.asc\"\n      height=\"6\"\n    />\n"
             "  </textures>"_s});
        const QString end = u"nodata=\"-9999.000000\"\n  />\n</veltaroTexturedBuildings>"_s;
        row("plain", "--quiet --wall-color 010203 --cache all",
            {u"  cache=\"all\" \n  delayedCacheWrite=\"false\""_s,
             u"wallColor=\"#010203\"\n    roofColor=\"#b5634c\""_s, end});
        row("plain, roofs from the raster", "--quiet --image ../level.asc --roof-color colormap",
            {u"roofColor=\"cmap:datasource=@/level.asc;cmap="_s, end});
        row("textured, all options",
            "--texture ../t/c.asc=3 --texture ../t/c_6m.asc --texture-on storeys "
            "--textured-distance 300 --wall-color #A0b0C0 --roof-color colormap --image "
            "../level.asc --image-nodata 5 --edge-color NAVY --force-edges "
            "--no-complex-buildings --cache textured --delayed-write --cache-capacity 7 "
            "--compression dxt5 --buffer 2.5 --dilatation 3 --magnify linear",
            {u"  cache=\"textured\" \n  delayedCacheWrite=\"true\" \n"
             "  delayedCacheWriteCapacity=\"7\">"_s,
             u"texturedVisibility=\"300\"\n    wallColor=\"#a0b0c0\"\n    "
             "roofColor=\"cmap:datasource=@/level.asc;nd=5;cmap=@/install dir/addons/"
             "telecom/colormaps/a/first.txt;stretchcmap=TRUE;interpolatecmap=TRUE;"
             "band=1;type=minimum\""_s,
             u"mode=\"storeys\"\n    edgeColor=\"#000080\"\n"
             "    forceEdgeCreation=\"true\"\n    processComplexBuildings=\"false\"\n"
             "   compression=\"dxt5\"\n    bufferValue=\"2.5\"\n"
             "    dilatationValue=\"3\"\n    magFilter=\"linear\""_s,
             u"filename=\"@/t/c.asc\"\n      height=\"3\""_s,
             u"filename=\"@/t/c_6m.asc\"\n      height=\"6\""_s});
        row("images beside the template's folder",
            "--textures ../t/net/c_9m.asc --structure sibling-folders --texture-on walls",
            {u"mode=\"walls\""_s, u"magFilter=\"none\"\n  >\n    <texture \n"
                                  "      filename=\"@/t/net/c_9m.asc\"\n"
                                  "      height=\"9\"\n    />\n  </textures>"_s});
    }

    QString path(const QString &name) const { return m_program->path(name); }
    Run start(const QString &arguments) const { return m_program->start(arguments); }

    std::unique_ptr<ProgramRun> m_program;
};

QTEST_GUILESS_MAIN(tst_BuildingsCommand)
#include "tst_BuildingsCommand.moc"
