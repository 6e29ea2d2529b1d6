#include "FootprintFiles.h"
#include "LayerScenes.h"
#include "contract/ReaderOptions.h"
#include "support/Files.h"

#include <QTemporaryDir>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;
using namespace vlt;
using namespace footprinttest;

/// The files of layers of buildings: which are found, refused and read with progress.
class tst_BuildingFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesOthers()
    {
        makeFootprints(path("town.gpkg"), {{Square, "5"}});
        writeFile(path("town.vrt"),
                  "<OGRVRTDataSource><OGRVRTLayer name=\"Town\"><SrcDataSource>town.gpkg"
                  "</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>");
        const std::map<std::string, QByteArray> documents = {
            {"/vsicurl", document("/vsicurl/http://localhost:9/a.shp")},
            {"http:", document("http://localhost:9/a")},
            {"PG:", document("PG:host=localhost")},
            {"town.vrt\" cannot be read", document("town.vrt")}, // refers to another file
            {"t.texb\" cannot be read", document("t.texb")}};
        for (const auto &[named, text] : documents) {
            writeFile(path("t.texb"), text);
            const layertest::Opened opened = layertest::open(path("t.texb"));
            QVERIFY2(!opened.scene, named.c_str());
            QVERIFY2(opened.fault.find(named) != std::string::npos, opened.fault.c_str());
        }
    }

    void reportsHowFarItIsAndStops()
    {
        Features features;
        for (int i = 0; i < 5000; ++i)
            features.append({Square, "5"});
        makeFootprints(path("town.gpkg"), features);
        writeFile(path("t.texb"), document());
        struct Caller
        {
            std::vector<double> shares;
            std::size_t stopAt;
        } caller{{}, 1000000};
        const auto hear = [](void *context, double share) {
            auto &[shares, stopAt] = *static_cast<Caller *>(context);
            shares.push_back(share);
            return shares.size() < stopAt;
        };
        contract::ReadProgress progress{hear, &caller};
        const osg::ref_ptr<osgDB::Options> options = new osgDB::Options;
        options->setPluginData(contract::ProgressDatum, &progress);

        QVERIFY(layertest::open(path("t.texb"), options).scene);
        QVERIFY(std::is_sorted(caller.shares.begin(), caller.shares.end()));
        QVERIFY(caller.shares.front() > 0 && caller.shares.front() < 0.5);
        QCOMPARE(caller.shares.back(), 1.0);

        const std::size_t calls = caller.shares.size();
        for (std::size_t call = 1; call <= calls; ++call) {
            caller = {{}, call};
            const layertest::Opened stopped = layertest::open(path("t.texb"), options);
            QVERIFY(!stopped.scene);
            QCOMPARE(stopped.fault, std::string(contract::StoppedText));
            QCOMPARE(caller.shares.size(), call);
        }
    }

    void looksForFilesInOrder()
    {
        const auto footprints = [](int buildings) {
            QByteArrayList features;
            for (int i = 0; i < buildings; ++i) {
                const QByteArray x = QByteArray::number(0.001 * i);
                const QByteArray right = QByteArray::number(0.001 * i + 0.0001);
                features << "{\"type\":\"Feature\",\"properties\":{\"Height\":5},\"geometry\":"
                            "{\"type\":\"Polygon\",\"coordinates\":[[[" +
                                x + ",0],[" + right + ",0],[" + x + ",0.0001],[" + x + ",0]]]}}";
            }
            return "{\"type\":\"FeatureCollection\",\"name\":\"Town\",\"features\":[" +
                   features.join(',') + "]}";
        };
        writeFile(path("docs/t.texb"), document("shapes/town.geojson"));

        QCOMPARE(layertest::foundInOrder(path("docs/t.texb"), QStringLiteral("shapes/town.geojson"),
                                         footprints, "buildings"),
                 QStringLiteral("1 2 3 4 4"));
    }

    void layersLeadToTheirDocument()
    {
        makeFootprints(path("town.gpkg"), {{Square, "5"}});
        writeFile(path("docs/t.texb"), document("../town.gpkg"));
        writeFile(path("layers/beside.texb"), document("town.gpkg")); // not in the project's folder
        const osg::ref_ptr<osgDB::Options> options = new osgDB::Options;
        options->setPluginStringData(contract::ProjectDatum, path("p.gvw").toStdString());
        const std::map<QByteArray, bool> sources = {
            {"TEXB:" + path("docs/t.texb").toUtf8(), true},
            {"texb:beside.texb", true}, // in the layer's folder
            {"TEXB:docs/t.texb", true}, // in the project's folder
            {"TEXB:/gone/beside.texb", true},
            {"TEXB:C:\\gone\\beside.texb", true},
            {"TEXB:no.texb", false},
            {"site:t.csv", false}};
        for (const auto &[source, isFound] : sources) {
            writeFile(path("layers/a.lay"),
                      "<veltaroLayer kind=\"buildings\"><title>Town &amp; more</title>"
                      "<subtype>rf_roofs</subtype><source><![CDATA[" +
                          source + "]]></source></veltaroLayer>");

            const layertest::Opened opened = layertest::open(path("layers/a.lay"), options);

            QVERIFY2(bool(opened.scene) == isFound, source);
            if (isFound)
                QCOMPARE(opened.scene->getName(), std::string("Town & more"));
            else
                QVERIFY(opened.fault.find(source.mid(5).toStdString()) != std::string::npos);
        }
    }

    /// The wizard may write its temporary document again after the layer was copied.
    void copiedLayersHaveTheirOwnDocument()
    {
        const QByteArray before = qgetenv("TMPDIR");
        makeFootprints(path("town.gpkg"), {{Square, "5"}});
        writeFile(path("temporary/t.texb"), "changed");
        writeFile(path("copied/t.texb"), document("../town.gpkg"));
        for (const char *layer : {"temporary/a.lay", "copied/a.lay"})
            writeFile(path(layer), "<veltaroLayer kind=\"buildings\"><source>TEXB:" +
                                       path("temporary/t.texb").toUtf8() +
                                       "</source></veltaroLayer>");

        QVERIFY(!layertest::open(path("copied/a.lay")).scene);
        qputenv("TMPDIR", path("temporary").toLocal8Bit());
        QVERIFY(layertest::open(path("copied/a.lay")).scene);
        QVERIFY(!layertest::open(path("temporary/a.lay")).scene);
        before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    }

private:
    QString path(const QByteArray &name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_BuildingFiles)
#include "tst_BuildingFiles.moc"
