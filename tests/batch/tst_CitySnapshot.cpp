#include "ProgramRun.h"
#include "support/Cases.h"

#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Red houses of 12 m by 12 m by 8 m, `side` by `side` of them, on a square with a side of `townM`.
QByteArray houses(double townM, int side)
{
    QByteArray text = R"({"type":"FeatureCollection","name":"t","crs":{"type":"name","properties":)"
                      R"({"name":"urn:ogc:def:crs:EPSG::2154"}},"features":[)";
    const auto place = [](double x, double y) {
        return '[' + QByteArray::number(700000 + x, 'f', 2) + ',' +
               QByteArray::number(6600000 + y, 'f', 2) + ']';
    };
    for (int n = 0; n < side * side; ++n) {
        const int row = n / side;
        const double x = townM * (n % side) / (side - 1);
        const double y = townM * row / (side - 1);
        text += QByteArray(n > 0 ? "," : "") +
                R"({"type":"Feature","properties":{"h":8},"geometry":{"type":"Polygon",)"
                R"("coordinates":[[)" +
                place(x, y) + ',' + place(x + 12, y) + ',' + place(x + 12, y + 12) + ',' +
                place(x, y + 12) + ',' + place(x, y) + "]]}}";
    }
    return text + "]}";
}

QByteArray document(int visibleM)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><veltaroTexturedBuildings \n"
           "  cache=\"none\">\n  <vector \n    filename=\"t.geojson\"\n    layer=\"t\"\n"
           "    hfield=\"h\"\n    tileSize=\"250\"\n    extrudedVisibility=\"" +
           QByteArray::number(visibleM) +
           "\"\n    texturedVisibility=\"100\"\n    wallColor=\"#ff0000\"\n"
           "    roofColor=\"#ff0000\"\n    skirtHeight=\"5\"\n    checkClockwise=\"false\"\n  />\n"
           "  <elevation \n    source=\"dtm\"\n    filename=\"flat.asc\"\n    nodata=\"\"\n  />\n"
           "</veltaroTexturedBuildings>\n";
}

bool isRed(const QColor &color)
{
    return color.red() > 2 * color.green() && color.red() > 2 * color.blue();
}

/// The bounds of the connected red areas.
QList<QRect> redParts(QImage picture)
{
    QList<QRect> parts;
    for (int start = 0; start < picture.width() * picture.height(); ++start) {
        QRect part;
        QList<QPoint> next{{start % picture.width(), start / picture.width()}};
        while (!next.isEmpty()) {
            const QPoint at = next.takeLast();
            if (!picture.valid(at) || !isRed(picture.pixelColor(at)))
                continue;
            picture.setPixelColor(at, Qt::black);
            part |= QRect(at, QSize(1, 1));
            next << at + QPoint(1, 0) << at - QPoint(1, 0) << at + QPoint(0, 1)
                 << at - QPoint(0, 1);
        }
        if (!part.isNull())
            parts << part;
    }
    return parts;
}

} // namespace

class tst_CitySnapshot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<ProgramRun>();
        writeFile(path(u"flat.asc"_s), "ncols 2\nnrows 2\nxllcorner 699000\nyllcorner 6599000\n"
                                       "cellsize 10000\n3 3\n3 3\n");
    }

    void showsTheCity_data()
    {
        const Cases<double, int, int, bool> row({"townM", "side", "visibleM", "isWhole"});
        row("seen whole", 400, 9, 2000, true);
        row("seen whole only from near", 800, 9, 1500, true);
        row("larger than what is seen", 8000, 81, 900, false);
        row("seen only from among the houses", 4000, 81, 100, false);
    }

    void showsTheCity()
    {
        QFETCH(double, townM);
        QFETCH(int, side);
        QFETCH(int, visibleM);
        writeFile(path(u"t.geojson"_s), houses(townM, side));
        writeFile(path(u"t.texb"_s), document(visibleM));

        const Run run = m_program->start(u"snapshot ../t.texb --size 640x480 -o t.png --json"_s);

        QFETCH(bool, isWhole); // if so, the houses are separate
        QCOMPARE(run.errors.isEmpty(), isWhole);
        static const QRegularExpression notice(
            u"^vltlayers: ([0-9]+|[0-9],[0-9]{3}) of 6,561 buildings are drawn from here\n$"_s);
        const QRegularExpressionMatch stated = notice.match(QString::fromUtf8(run.errors));
        QVERIFY2(isWhole || stated.hasMatch(), run.errors);
        const int drawn = stated.captured(1).remove(u',').toInt();
        QVERIFY(isWhole || (drawn > 0 && drawn < side * side / 2));
        const QJsonObject scene =
            QJsonDocument::fromJson(run.output).object().value(u"scene"_s).toObject();
        QCOMPARE(scene.value(u"buildings"_s).toString(), QString::number(side * side));
        const QImage picture(path(u"elsewhere/t.png"_s));
        QRect red;
        const QList<QRect> parts = redParts(picture);
        for (const QRect &part : parts)
            red |= part;
        QVERIFY(red.width() > 0.6 * picture.width());
        QVERIFY(red.contains(picture.rect().center()));
        if (isWhole)
            QCOMPARE(parts.size(), side * side);
        QCOMPARE(picture.rect().adjusted(1, 1, -1, -1).contains(red), isWhole);
    }

    void hasNoViewsOfSites()
    {
        writeFile(path(u"t.geojson"_s), houses(400, 9));
        writeFile(path(u"t.texb"_s), document(2000));

        for (const QString &view : {u"symbolic"_s, u"precise"_s}) {
            const Run run = m_program->start(u"snapshot ../t.texb -o t.png --view "_s + view);

            QCOMPARE(run.status, 1);
            QVERIFY2(run.errors.contains("it contains no sites: only --view all"),
                     run.errors.constData());
        }
    }

private:
    QString path(const QString &name) const { return m_program->path(name); }

    std::unique_ptr<ProgramRun> m_program;
};

QTEST_GUILESS_MAIN(tst_CitySnapshot)
#include "tst_CitySnapshot.moc"
