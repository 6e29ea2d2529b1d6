#include "ProgramRun.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// A mast of 30 m with sectors of 200 m; the precise representation is visible up to 1000 m.
const QString Pylon =
    u"inline://parametric/query?object=pylon&pylon_type=monopole_panel&pylon=0 0 0 30 2.5 200 20 2"
    "&transmitter=28 0 3 65 2 ff0000ff&transmitter=28 120 3 65 2 00ff00ff"
    "&transmitter=28 240 3 65 2 0000ffff&transmitter_scale=100&lod=10000 1000.inlinepylonurl"_s;

/// A scene without drawables.
const QByteArray EmptyScene = "#Ascii Scene\n#Version 162\n#Generator OpenSceneGraph 3.6.5\n\n"
                              "osg::Group {\n  UniqueID 1\n}\n";

/// Number of pixels of a column that differ from the sky, which is the pixel at the left edge of
/// the row.
int drawnPixels(const QImage &picture, int x)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        count += picture.pixel(x, y) != picture.pixel(0, y);
    return count;
}

/// Distance from the first drawn row to the last one, as a share of the height.
double drawnShare(const QImage &picture)
{
    int first = picture.height();
    int last = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, y)) {
                first = qMin(first, y);
                last = y;
                break;
            }
        }
    }
    return static_cast<double>(last - first + 1) / picture.height();
}

/// Whether many pixels have the pure blue of the third sector; its antenna has only few of them.
bool showsBlueSector(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            count += color.green() < 40 && color.red() < 40 && color.blue() > 180;
        }
    }
    return count > picture.width() * picture.height() / 100;
}

} // namespace

class tst_Snapshot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<ProgramRun>();
        writeFile(path(u"empty.osgt"_s), EmptyScene);
        writeFile(path(u"old.png"_s), "old");
    }

    void picturesAPylonInEveryView()
    {
        QSet<QByteArray> pictures;
        for (const QString &view : {u"all"_s, u"symbolic"_s, u"precise"_s}) {
            const QString name = path(view + u".png"_s);
            const Run run = start(
                {Pylon, u"-o"_s, name, u"--size"_s, u"321x240"_s, u"--view"_s, view, u"--json"_s});

            QCOMPARE(run.errors, QByteArray());
            QCOMPARE(run.status, 0);
            const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
            QCOMPARE(reported.value(u"picture"_s).toString(), name);
            const QImage picture(name);
            QCOMPARE(picture.size(), QSize(321, 240));
            // the mast stands in the middle
            QVERIFY(drawnPixels(picture, 160) > 10);
            QCOMPARE(showsBlueSector(picture), view == u"symbolic"_s);
            if (view != u"symbolic"_s)
                QVERIFY2(drawnShare(picture) > 0.8 && drawnShare(picture) < 1, qPrintable(view));
            pictures.insert(readFile(name));
        }
        QCOMPARE(pictures.size(), 2); // all of a single site is its precise view
    }

    void drawsTitleAndNorthAtTheEdges()
    {
        const QString with = path(u"with.png"_s);
        QCOMPARE(start({Pylon, u"-o"_s, path(u"old.png"_s)}).status, 0);
        QCOMPARE(start({Pylon, u"-o"_s, with, u"--title"_s, u"A mast"_s, u"--north"_s}).errors, "");

        const QImage picture(with);
        const QImage other(path(u"old.png"_s));
        QVERIFY(picture.copy(320, 240, 640, 480) == other.copy(320, 240, 640, 480));
        for (const QPoint &corner : {QPoint(0, 0), QPoint(960, 0), QPoint(0, 720)}) {
            const QRect part(corner, QSize(320, 240));
            QVERIFY(picture.copy(part) != other.copy(part));
        }
    }

    /// A site without a ground height stands on the slope, whatever its height there; one with a
    /// ground height stands where the table says.
    void standsOnTheGround_data()
    {
        // visible: share of the mast
        const Cases<QByteArray, double, double> row({"row", "least", "most"});
        row("low on the slope", "650250,6860500,", 0.9, 1);
        row("between two pixels, high on the slope", "650804,6860496,", 0.9, 1);
        row("half inside the hill", "650800,6860500,165", 0.35, 0.6);
        row("on the hill by the table", "650800,6860500,181", 0.9, 1);
    }
    void standsOnTheGround()
    {
        QFETCH(QByteArray, row);
        QFETCH(double, least);
        QFETCH(double, most);
        const auto height = [](int column, int, int) { return 100 + column + 0.5; };
        makeGeoTiff(path(u"dem.tif"_s), {100, 100, 1, GDT_Float32,
                                         northUp(650000, 6860000, 10, 100), "EPSG:2154", height});
        writeFile(path(u"t.csv"_s),
                  "Site ID,X,Y,Transmitter-1 Terrain Height (m),Transmitter-1 height (m)\nA," +
                      row + ",28\n");
        writeFile(path(u"t.lay"_s),
                  "<veltaroLayer kind=\"sites\" version=\"1\"><source>site:s_srs=2154,t_srs=2154,"
                  "pylon_type=monopole_panel,pylon_width=2.5,sector_colors=ff0000ff,"
                  "sector_properties=200 20 2,transmitter_scale=100,lods=10000 1000," +
                      path(u"t.csv"_s).toUtf8() + "</source></veltaroLayer>");
        const auto picture = [this](const QString &name, const QStringList &options) {
            const Run run = start(QStringList{path(u"t.lay"_s), u"-o"_s, path(name), u"--view"_s,
                                              u"site:A"_s, u"--terrain"_s, path(u"dem.tif"_s),
                                              u"--labels"_s, u"none"_s, u"--size"_s, u"400x300"_s} +
                                  options);
            return run.status == 0 ? QImage(path(name)) : QImage();
        };
        const QImage alone = picture(u"alone.png"_s, {u"--no-ground"_s});
        const QImage whole = picture(u"whole.png"_s, {});
        QCOMPARE(whole.size(), QSize(400, 300));

        int mast = 0; // rows; the pixels at its sides are mixed with what is behind
        int visible = 0;
        for (int y = 0; y < alone.height(); ++y) {
            bool isMast = false;
            bool isVisible = false;
            for (int x = 190; x < 210; ++x) {
                const bool isHere = alone.pixel(x, y) != alone.pixel(0, y);
                isMast = isMast || isHere;
                isVisible = isVisible || (isHere && whole.pixel(x, y) == alone.pixel(x, y));
            }
            mast += isMast;
            visible += isVisible;
        }
        QVERIFY(mast > 150);
        const double share = static_cast<double>(visible) / mast;
        QVERIFY2(share >= least && share <= most, QByteArray::number(share));
        const QColor ground = whole.pixelColor(20, 290);
        QVERIFY(ground.red() > ground.blue() + 20);
        QVERIFY(alone.pixelColor(20, 290).blue() >= alone.pixelColor(20, 290).red());
    }

    void leavesOutTheBackground()
    {
        QString translucent = Pylon;
        translucent.replace(u"0000ffff"_s, u"0000ff80"_s); // two walls pass half of the light
        const Run run = start({translucent, u"-o"_s, path(u"old.png"_s), u"--transparent"_s,
                               u"--title"_s, u"A mast"_s, u"--view"_s, u"symbolic"_s});
        QCOMPARE(run.errors, QByteArray());

        const QImage picture(path(u"old.png"_s));
        QVERIFY(picture.hasAlphaChannel());
        int clear = 0;
        int half = 0;
        int opaque = 0;
        for (int y = 100; y < picture.height(); ++y) { // below the title
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                clear += color.alpha() == 0;
                opaque += color.alpha() == 255;
                half += std::abs(color.alpha() - 128) < 3 && color.red() < 3 && color.blue() > 160;
            }
        }
        const int hundredth = picture.width() * picture.height() / 100;
        QVERIFY2(clear > 40 * hundredth && half > hundredth && opaque > hundredth,
                 qPrintable(u"%1 %2 %3 of %4"_s.arg(clear).arg(half).arg(opaque).arg(hundredth)));
        QCOMPARE(picture.pixelColor(picture.width() - 1, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(30, 14).alpha(), 255); // the title's plate
    }

    void makesTheSamePictureTwice()
    {
        const QString again = path(u"again.png"_s);
        QCOMPARE(start({Pylon, u"-o"_s, path(u"old.png"_s)}).status, 0);
        QCOMPARE(start({Pylon, u"-o"_s, again}).status, 0);

        QCOMPARE(QImage(again).size(), QSize(1280, 960));
        QVERIFY(readFile(again) == readFile(path(u"old.png"_s)));
    }

    void refusesAndWritesNothing_data()
    {
        const Cases<QStringList, int, QByteArray, bool> row(
            {"arguments", "status", "message", "hasNoDisplay"});
        const auto size = [](const char *text) {
            return QStringList{Pylon, u"--size"_s, QString::fromLatin1(text)};
        };
        row("missing file", {u"no.lay"_s}, 1, "no.lay: no such file");
        row("folder", {u"../install dir"_s}, 1, "install dir: no such file");
        row("network", {u"http://localhost/a.osgt"_s}, 1, "only local files");
        row("other protocol", {u"inline://other/query?a.osgt"_s}, 1, "only local files");
        row("onto itself", {u"old.png"_s}, 1, "input files");
        row("empty scene", {u"empty.osgt"_s}, 1, "empty.osgt: the scene is empty");
        row("scene without sites", {u"empty.osgt"_s, u"--view"_s, u"precise"_s}, 1, "no sites");
        row("bad query", {Pylon + u"&pylon=1.inlinepylonurl"_s}, 1, "pylon");
        row("no display", {Pylon}, 1, "run under xvfb-run", true);
        row("no layer", {}, 2, "no layer");
        row("unknown view", {Pylon, u"--view"_s, u"bottom"_s}, 2, "--view");
        row("unknown labels", {Pylon, u"--labels"_s, u"few"_s}, 2, "--labels");
        row("too small", size("15x100"), 2, "--size");
        row("too large", size("100x8193"), 2, "--size");
        row("overflow", size("4294967396x100"), 2, "--size");
        row("no height", size("100"), 2, "--size");
        row("negative", size("-100x100"), 2, "--size");
        row("other format", {Pylon, u"-o"_s, u"a.jpg"_s}, 2, ".png");
    }

    void refusesAndWritesNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, hasNoDisplay);
        if (!arguments.contains(u"-o"_s))
            arguments << u"-o"_s << u"old.png"_s;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        if (hasNoDisplay)
            environment.insert(u"DISPLAY"_s, u":4711"_s);

        m_program->checkRefusal(QStringList{u"snapshot"_s} + arguments, environment);
    }

private:
    QString path(const QString &name) const { return m_program->path(u"elsewhere/"_s + name); }
    Run start(const QStringList &arguments) const
    {
        return m_program->start(QStringList{u"snapshot"_s} + arguments);
    }

    std::unique_ptr<ProgramRun> m_program;
};

QTEST_GUILESS_MAIN(tst_Snapshot)
#include "tst_Snapshot.moc"
