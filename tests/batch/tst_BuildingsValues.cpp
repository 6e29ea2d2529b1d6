#include "ProgramRun.h"
#include "support/GeoTiff.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ogrsf_frmts.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double East = 222000; ///< origin of the footprints
constexpr double North = 6758000;

const QString Town = u"buildings " VLT_FOOTPRINTS "/levels.geojson --dtm ../dem.tif -o o.lay "
                     "--height-field building:levels --else-field height "
                     "--bottom-field min_height "_s;
const QString Colored = Town + u"--image ../classes.tif --colormap ../own.txt --absolute "
                               "--color-ranges --mode average "_s;

/// Of the squares of 10 m that stand at 0, 20, 40 ... 140 m; the first 100 m have values.
const QByteArray Rows =
    R"(fid,id,height_m,height_from,base_m,bottom_m,value,pixels,share_1,share_woods,color,left_out
0,house,6,field,42.3,0,1.5,4,0.5,0.5,#ff0000,
1,house,15,field,42.3,0,1.5,4,0.5,0.5,#ff0000,
2,shed,,,,,,,,,,missingHeight
3,shed,,,,,,,,,,notPositive
4,"water ""tower""",30,field,42.3,12,2,4,0,1,#0000ff80,
5,,3,field,42.3,0,,0,,,,
6,house,12,field,42.3,0,,0,,,,
7,house,8,elseField,42.3,0,,0,,,,
)";

} // namespace

class tst_BuildingsValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<ProgramRun>();
        const QString telecom = m_program->path(u"install dir/addons/telecom/"_s);
        QVERIFY(QFile::link(u"" VLT_INSTALLATION "/addons/telecom/template"_s,
                            telecom + u"template"_s));
        makeGeoTiff(m_program->path(u"dem.tif"_s),
                    {3, 3, 1, GDT_Float32, northUp(East - 500, North - 500, 1000, 3), "EPSG:2154",
                     [](int, int, int) { return 42.3; }});
        // two rows of pixels of 5 m
        makeGeoTiff(m_program->path(u"classes.tif"_s),
                    {20, 2, 1, GDT_Byte, northUp(East, North, 5, 2), "EPSG:2154",
                     [](int column, int row, int) { return row == 0 && column < 16 ? 1 : 2; },
                     [](GDALDataset &made) {
                         const char *const names[] = {"sea", "", "woods", nullptr};
                         made.GetRasterBand(1)->SetCategoryNames(const_cast<char **>(names));
                     }});
        writeFile(m_program->path(u"own.txt"_s), "1 255 0 0\n2 0 0 255 128\n");
    }

    void writesText()
    {
        const Run run =
            m_program->start(Colored + u"--id-field USAGE --json --quiet --values v.csv"_s);

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(readFile(values(u"v.csv"_s)), Rows);
        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(reported.value(u"values"_s).toString(), values(u"v.csv"_s));
        const QJsonObject summary = reported.value(u"summary"_s).toObject();
        QCOMPARE(summary.value(u"buildings"_s).toInt(), 3);
        QCOMPARE(summary.value(u"median"_s).toDouble(), 1.5);
        const QJsonObject highest = summary.value(u"classes"_s).toArray().last().toObject();
        QCOMPARE(highest, (QJsonObject{{u"from"_s, 2.},
                                       {u"to"_s, QJsonValue::Null},
                                       {u"buildings"_s, 1},
                                       {u"shareFrom"_s, 1. / 3}}));
    }

    /// With the outlines, and in place of an older file.
    void writesAPackage()
    {
        writeFile(values(u"V.GPKG"_s), "old");
        const Run run = m_program->start(Colored + u"--where usage='house' --values V.GPKG"_s);

        QCOMPARE(run.output,
                 QByteArray("buildings with a value: 2, from 1.5 to 1.5, median 1.5\n"));
        QCOMPARE(run.status, 0);
        const GDALDatasetUniquePtr package(
            GDALDataset::Open(values(u"V.GPKG"_s).toUtf8().constData(), GDAL_OF_VECTOR));
        QVERIFY(package);
        OGRLayer *layer = package->GetLayerByName("V");
        QVERIFY(layer);
        QCOMPARE(QByteArray(layer->GetSpatialRef()->GetAuthorityCode(nullptr)), QByteArray("2154"));
        QStringList rows;
        for (const OGRFeatureUniquePtr &feature : *layer) {
            OGREnvelope extent;
            feature->GetGeometryRef()->getEnvelope(&extent);
            rows << u"%1 at %2: %3"_s.arg(feature->GetFID())
                        .arg(extent.MinX - East)
                        .arg(QString::fromUtf8(feature->GetFieldAsString("share_woods")));
        }
        QCOMPARE(rows.join(u", "), u"0 at 0: 0.5, 1 at 20: 0.5, 6 at 120: , 7 at 140: "_s);
    }

    /// A list of plain buildings has no values.
    void listsBuildingsWithoutARaster()
    {
        const Run run = m_program->start(Town + u"--values v.csv --where fid=4"_s);

        QCOMPARE(run.status, 0);
        QCOMPARE(readFile(values(u"v.csv"_s)),
                 QByteArray("fid,id,height_m,height_from,base_m,bottom_m,value,pixels,color,"
                            "left_out\n4,,30,field,42.3,12,,,,\n"));
    }

    /// Of texts, and of the same field with numbers.
    void listsTheColorsOfAField()
    {
        QByteArray numbers = readFile(u"" VLT_FOOTPRINTS "/levels.geojson"_s);
        numbers.replace("\"house\"", "1").replace("\"shed\"", "2");
        numbers.replace("\"water \\\"tower\\\"\"", "1.5");
        writeFile(m_program->path(u"numbers.geojson"_s), numbers);
        const QString ofNumbers =
            QString(Town).replace(u"" VLT_FOOTPRINTS "/levels"_s, u"../numbers"_s) +
            u"--colormap ../own.txt --absolute "_s;
        for (const auto &[inputs, wanted] :
             {std::pair{Town, "color #1f6fb5 #1f6fb5   #2e9e4f  #1f6fb5 #1f6fb5"},
              std::pair{ofNumbers, "color #ff0000 #ff0000   #800080c0  #ff0000 #ff0000"}}) {
            const Run run =
                m_program->start(inputs + u"--color-field usage --quiet --values v.csv"_s);

            QCOMPARE(run.status, 0);
            QByteArrayList colors;
            for (const QByteArray &line : readFile(values(u"v.csv"_s)).trimmed().split('\n'))
                colors << line.split(',').value(line.count(',') - 1);
            QCOMPARE(colors.join(' '), QByteArray(wanted));
        }
    }

    void refusesAndWritesNothing_data()
    {
        // "%": the inputs
        const Refusals row;
        row("% --values v.txt", 2, "--values is the name of a file .csv or .gpkg, not \"v.txt\"");
        row("% --id-field usage", 2, "--id-field needs --values");
        row("% --values v.csv --id-field no", 1, "the footprints have no field \"no\"");
        row("% --values no/v.gpkg", 1, "no/v.gpkg");
        row("buildings ../own.csv --dtm ../dem.tif -o o.lay --values ../own.csv", 1,
            "one of the input files");
    }

    void refusesAndWritesNothing()
    {
        writeFile(m_program->path(u"own.csv"_s), readFile(u"" VLT_FOOTPRINTS "/curves.csv"_s));
        m_program->checkRefusal(QString::fromUtf8(QTest::currentDataTag()).replace(u"%"_s, Town));
    }

private:
    QString values(const QString &name) const { return m_program->path(u"elsewhere/"_s + name); }

    std::unique_ptr<ProgramRun> m_program;
};

QTEST_GUILESS_MAIN(tst_BuildingsValues)
#include "tst_BuildingsValues.moc"
