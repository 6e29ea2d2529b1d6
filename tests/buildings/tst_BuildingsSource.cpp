#include "SourcePage.h"
#include "buildings/HeightGuess.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "support/Cases.h"
#include "support/Patience.h"

#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QRadioButton>

#include <ogrsf_frmts.h>

using namespace sourcetest;

class tst_BuildingsSource : public QObject, SourceFiles
{
    Q_OBJECT

    /// A file with the layers "one" (a, b) and "two" (c, HEIGHT) and a line layer between them.
    QString twoLayers() const
    {
        const QString path = file(u"two.gpkg"_s);
        QFile::remove(path);
        const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GPKG")->Create(
            path.toUtf8(), 0, 0, 0, GDT_Unknown, nullptr));
        const auto add = [&](const char *name, OGRwkbGeometryType type,
                             const QList<QByteArray> &names) {
            OGRLayer *layer = made->CreateLayer(name, nullptr, type, nullptr);
            for (const QByteArray &field : names) {
                OGRFieldDefn real(field.constData(), OFTReal);
                layer->CreateField(&real);
            }
            OGRFeature feature(layer->GetLayerDefn());
            OGRGeometry *triangle = nullptr;
            OGRGeometryFactory::createFromWkt("POLYGON ((0 0,8 0,8 2,0 0))", nullptr, &triangle);
            const OGRGeometryUniquePtr owner(triangle);
            feature.SetGeometry(type == wkbPolygon ? triangle : nullptr);
            return layer->CreateFeature(&feature) == OGRERR_NONE;
        };
        const bool isMade =
            add("one", wkbPolygon, {"a", "b"}) && add("lines", wkbLineString, {"x"}) &&
            add("measured", wkbPolygonM, {"x"}) && add("two", wkbPolygon, {"c", "HEIGHT"});
        return isMade ? path : QString();
    }

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void init() { vlt::platform::wizardSettings()->clear(); }

    void opensVectors_data()
    {
        // message: empty: opened; "-": not opened, without a message
        const Cases<QString, QByteArray, bool, QString> row(
            {"name", "contents", "silent", "message"});
        const QString refused = u"This file can't be open as a vector file"_s;
        const QString noPolygons = u"This datasource doesn't contain any polygon layer"_s;
        row("polygons", "a.geojson", features({Square}), false, {});
        row("mixed, so of no declared kind", "b.geojson", features({Point, Square}), true, {});
        row("points", "c.geojson", features({Point}), false, noPolygons);
        row("points, silent", "c.geojson", features({Point}), true, noPolygons);
        row("no vector", "d.geojson", "no", false, refused);
        row("no vector, silent", "d.geojson", "no", true, "-");
        row("empty path", {}, {}, false, "-");
        for (const char *name :
             {"/gone/e.shp", "/vsicurl/http://127.0.0.1:9/a.geojson",
              "http://127.0.0.1:9/a.geojson", "PG:host=127.0.0.1", "/vsimem/a.geojson"})
            row(name, name, {}, false, refused);
    }

    void opensVectors()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, contents);
        QFETCH(bool, silent);
        QFETCH(QString, message);
        const QString path = contents.isEmpty() ? name : write(name, contents);
        Host host;
        host.page->openVector(plain());
        QCOMPARE(host.layer()->count(), 1);
        const AnsweredBoxes boxes;

        host.page->openVector(path, silent);

        const bool isOpened = message.isEmpty();
        compareBoxes(boxes.seen, QMessageBox::Critical, u"Error"_s,
                     message == u"-" ? QString() : message);
        QCOMPARE(host.buildings()->text(), isOpened ? path : QString());
        QCOMPARE(host.layer()->count(), isOpened ? 1 : 0);
        QCOMPARE(host.layer()->currentData().toString(), isOpened ? name.chopped(8) : QString());
        QCOMPARE(host.height()->count(), isOpened ? 1 : 0);
        QVERIFY(!host.canGoOn());
    }

    void guessesTheHeight_data()
    {
        const Cases<QByteArray, QString, int, QString> row(
            {"properties", "offered", "index", "hint"});
        const QString likely = u"The field \"%1\" probably has the heights."_s;
        row("HEIGHT", R"({"ID":1,"NAME":"a","HEIGHT":2.5})",
            "ID (Integer)|NAME (String)|HEIGHT (Real)", 2, {});
        row("H before HEIGHT, any case", R"({"h":1,"HEIGHT":2})", "h (Integer)|HEIGHT (Integer)", 0,
            {});
        row("AGL before all", R"({"Color":"x","h":1,"agl":2})",
            "Color (String)|h (Integer)|agl (Integer)", 2, {});
        row("none: the second", R"({"ID":1,"NAME":"a"})", "ID (Integer)|NAME (String)", 1, {});
        row("none, only one", R"({"ID":1})", "ID (Integer)", 0, {});
        row("fields that are not offered count", R"({"d":"2024/01/02","H":1,"s":"x"})",
            "H (Integer)|s (String)", 1, likely.arg(u"H"_s));
        row("counted beyond the end", R"({"n":123456789012,"H":1})", "H (Integer)", -1,
            likely.arg(u"H"_s));
        row("64 bits", R"({"a":1,"height":123456789012})", "a (Integer)", -1,
            u"The field \"height\" probably has the heights: choose it at \"Else from\"."_s);
        row("none, not offered", R"({"n":1,"day":"2024/01/02","s":"x"})", "n (Integer)|s (String)",
            1, {});
        row("none that can be chosen", R"({"day":"2024/01/02"})", {}, -1,
            "Choose the field with the heights.");
    }

    void guessesTheHeight()
    {
        QFETCH(QByteArray, properties);
        QFETCH(int, index);
        Host host;

        host.page->openVector(write(u"fields.geojson"_s, features({Square}, properties)));

        QStringList items;
        for (int i = 0; i < host.height()->count(); ++i)
            items << host.height()->itemText(i);
        QTEST(items.join(u'|'), "offered");
        QCOMPARE(host.height()->currentIndex(), index);
        QTEST(host.info(u"Height"_s), "hint");
        host.dtm()->setText(u"x"_s);
        QCOMPARE(host.canGoOn(), index >= 0);
        auto *other = host.child<QComboBox>(u"m_pwCbElse"_s);
        other->setCurrentIndex(1);
        QCOMPARE(host.canGoOn(), index >= 0 || other->count() > 1);
    }

    void guessesTheUnit_data()
    {
        const Cases<QString> row({"unit"});
        for (const char *name : {"levels", "NB_ETAGES", "building:levels", "STOREYS", "NbNiv",
                                 "NBETAGES", "numFloors", "étages"})
            row(name, "levels");
        for (const char *name : {"height_ft", "HeightFt", "HAUT_PIEDS", "levels_ft"})
            row(name, "ft");
        for (const char *name : {"HEIGHT", "level", "FLOOR_HEIGHT", "loft", "nb", "", "_"})
            row(name, "m");
    }

    void guessesTheUnit()
    {
        const auto unit = vlt::buildings::unitFromName(QString::fromUtf8(QTest::currentDataTag()));
        const char *word = vlt::contract::HeightUnitWords[static_cast<int>(unit)];
        QTEST(QString::fromLatin1(word), "unit");
    }

    void appendsTheFieldsOfAnotherLayer()
    {
        Host host;
        host.page->openVector(twoLayers());
        QCOMPARE(host.layer()->count(), 2); // without the lines and the polygons with measures
        QCOMPARE(host.height()->count(), 2);
        QCOMPARE(host.height()->currentIndex(), 1);

        host.layer()->setCurrentIndex(1);

        QCOMPARE(host.height()->count(), 4);
        QCOMPARE(host.height()->itemData(3).toString(), u"HEIGHT"_s);
        QCOMPARE(host.height()->currentIndex(), 1); // field of "two" after those of "one"
        QVERIFY2(host.info(u"Buildings"_s).startsWith(u"Buildings: 1"_s),
                 qPrintable(host.info(u"Buildings"_s)));
        host.page->layerChanged(-1);
        QCOMPARE(host.layer()->count(), 0);
    }

    void publishesAndRemembers_data()
    {
        const Cases<bool> row({"colored"});
        row("colored", true);
        row("textured", false);
    }

    void publishesAndRemembers()
    {
        QFETCH(bool, colored);
        Host host;
        QVERIFY(host.child<QRadioButton>(u"m_pwRbColored"_s)->isChecked());
        host.page->openVector(twoLayers());
        host.layer()->setCurrentIndex(1);
        host.height()->setCurrentIndex(3);
        {
            const FileDialogAnswer dialog(grid());
            host.child<QPushButton>(u"m_pwPbDtm"_s)->click();
            QCOMPARE(dialog.caption, u"Select the raster DTM"_s);
            QCOMPARE(dialog.filters, QStringList{u"Raster Files (*.*)"_s});
        }
        host.noData()->setText(u"-1"_s);
        host.child<QRadioButton>(colored ? u"m_pwRbColored"_s : u"m_pwRbTextured"_s)->click();
        QVERIFY(host.canGoOn());

        host.wizard.next();

        QCOMPARE(host.wizard.currentId(), colored ? 2 : 3);
        const QVariantList fields{QVariantList{u"c"_s, 2}, QVariantList{u"HEIGHT"_s, 2}};
        const SharedParameters expected{
            {u"ColorFields"_s, fields}, {u"Buildings"_s, file(u"two.gpkg"_s)},
            {u"Layer"_s, u"two"_s},     {u"Height"_s, u"HEIGHT"_s},
            {u"Dtm"_s, grid()},         {u"Nodata"_s, u"-1"_s},
            {u"CenterX"_s, 4.0},        {u"CenterY"_s, 1.0}};
        QCOMPARE(host.parameters, expected);
        QCOMPARE(host.parameters.value(u"CenterX"_s).typeId(), QMetaType::Double);
        const QString prefix = u"AddTexbFirstPage/"_s;
        QCOMPARE(remembered(prefix + u"Buildings"_s).toString(), file(u"two.gpkg"_s));
        QCOMPARE(remembered(prefix + u"Layer"_s).toInt(), 1);
        QCOMPARE(remembered(prefix + u"Height"_s).toInt(), 3);
        QCOMPARE(remembered(prefix + u"Dtm"_s).toString(), grid());
        QCOMPARE(remembered(prefix + u"Nodata"_s).toString(), u"-1"_s);
        QCOMPARE(remembered(prefix + u"Type"_s).toString(), colored ? u"Colored"_s : u"Textured"_s);
        QCOMPARE(remembered(u"LastUsedDir"_s).toString(), QFileInfo(grid()).path());
        QCOMPARE(vlt::platform::wizardSettings()->allKeys().size(), 7);

        Host again; // layer, height and missing values come from the files
        QCOMPARE(again.buildings()->text(), file(u"two.gpkg"_s));
        QCOMPARE(again.layer()->currentIndex(), 0);
        QCOMPARE(again.height()->currentIndex(), 1);
        QCOMPARE(again.noData()->text(), u"-9999.000000"_s);
        QCOMPARE(again.child<QRadioButton>(u"m_pwRbColored"_s)->isChecked(), colored);
    }

    void publishesHeights()
    {
        Host host;
        const QByteArray properties = R"({"a":"x","NB_ETAGES":2,"z":123456789012})";
        host.page->openVector(write(u"h.geojson"_s, features({Square}, properties)));
        host.page->findChild<QLineEdit *>(u"m_pwLeDtm"_s)->setText(grid());
        const auto choose = [&host](const QString &combo, int index) {
            host.child<QComboBox>(u"m_pwCb"_s + combo)->setCurrentIndex(index);
        };
        QCOMPARE(host.child<QComboBox>(u"m_pwCbUnit"_s)->currentText(), u"levels"_s);
        choose(u"Base"_s, 3);
        QVERIFY(!host.canGoOn());
        QCOMPARE(host.info(u"Height"_s), u"Choose the field with the ground height."_s);
        choose(u"BaseField"_s, 3);
        choose(u"Else"_s, 3);
        choose(u"Bottom"_s, 2);
        choose(u"Reference"_s, 1);
        host.child<QDoubleSpinBox>(u"m_pwSbDefault"_s)->setValue(4.5);
        auto *where = host.child<QLineEdit>(u"m_pwLeWhere"_s);
        for (const char *wrong : {"a >", "a = 'y'"}) {
            where->setText(QLatin1String(wrong));
            const AnsweredBoxes boxes;
            host.wizard.next();
            QCOMPARE(boxes.seen.size(), 1);
        }
        where->setText(u" a = 'x' "_s);
        host.wizard.next();
        QCOMPARE(host.wizard.currentId(), 2);

        const auto read = vlt::buildings::readBuildingsSource(host.parameters);

        vlt::contract::BuildingHeights expected;
        expected.unit = vlt::contract::HeightUnit::Levels;
        expected.elseField = expected.baseField = "z";
        expected.bottomField = "NB_ETAGES";
        expected.defaultM = 4.5;
        expected.reference = vlt::contract::HeightReference::Sea;
        expected.base = vlt::contract::BaseRule::Field;
        QVERIFY(read.heights == expected);
        QCOMPARE(read.where, u"a = 'x'"_s);
    }

    void countsWhatIsChosen()
    {
        Host host;
        auto *counts = host.child<QLabel>(u"m_pwLblCounts"_s);
        auto *advice = host.child<QPushButton>(u"m_pwPbAdvice"_s);
        auto *where = host.child<QLineEdit>(u"m_pwLeWhere"_s);
        const auto shown = [counts] { return counts->text().section(u'\n', 0, 0); };
        QByteArray town = features({Square, Square, Square}, R"({"HEIGHT":5,"levels":3})");
        town.replace(town.indexOf("5"), 1, "null");
        QVERIFY(counts->isHidden());

        host.page->openVector(write(u"gaps.geojson"_s, town));
        QTRY_COMPARE_WITH_TIMEOUT(shown(), u"Buildings: 2, left out: 1"_s, PatienceMs);
        QVERIFY2(counts->text().contains(u"\n1 of 3 buildings are left out: no height in"_s),
                 qPrintable(counts->text()));
        QVERIFY(!counts->text().contains(u"terrain"_s)); // it is not chosen yet
        host.child<QDoubleSpinBox>(u"m_pwSbDefault"_s)->setValue(6);
        QTRY_COMPARE_WITH_TIMEOUT(shown(), u"Buildings: 3, default height: 1"_s, PatienceMs);
        QVERIFY(advice->isVisible() && advice->text().contains(u"levels"_s));
        advice->click();
        QTRY_COMPARE_WITH_TIMEOUT(shown(), u"Buildings: 3, second field: 1"_s, PatienceMs);
        QVERIFY(!advice->isVisible());
        QCOMPARE(host.child<QComboBox>(u"m_pwCbElseUnit"_s)->currentText(), u"levels"_s);

        for (const auto &[text, message] :
             {std::pair(u"levels >"_s, u"The filter \"levels >\" cannot be used"_s),
              std::pair(u"levels > 3"_s, u"The filter \"levels > 3\" leaves no building"_s)}) {
            where->setText(text);
            QTRY_VERIFY_WITH_TIMEOUT(shown().startsWith(message), PatienceMs);
        }
        host.page->openVector({});
        QVERIFY(counts->isHidden() && counts->text().isEmpty());
    }

    void leadsTabThroughTheHeights()
    {
        Host host;
        host.page->openVector(plain());
        host.child<QComboBox>(u"m_pwCbElse"_s)->setCurrentIndex(1);
        host.child<QComboBox>(u"m_pwCbBase"_s)->setCurrentIndex(3);
        host.wizard.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host.wizard));
        host.height()->setFocus();
        QStringList names;
        while (names.size() < 12) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            names << QApplication::focusWidget()->objectName().mid(4);
        }

        QCOMPARE(names.join(u' '), u"CbUnit SbFactor SbLevel CbElse CbElseUnit SbDefault "
                                   "CbReference CbBase CbBaseField CbBottom LeWhere LeDtm"_s);
    }

    void takesTheFilesOfTheProjectOnce()
    {
        const AnsweredBoxes boxes;
        remember(u"Buildings"_s, twoLayers());
        const QString project = write(u"p.gvw"_s, "DEM Layers\nFiles : grid.asc\nVector layer\n "
                                                  "File : plain é.geojson\n Layer name : BATI\n");
        grid();
        plain();
        Host host(project);
        QCOMPARE(host.buildings()->text(), plain());
        QCOMPARE(host.dtm()->text(), grid());

        host.page->openVector(twoLayers());
        host.wizard.back();
        host.wizard.next();
        QCOMPARE(host.buildings()->text(), twoLayers());

        host.parameters.insert(u"ProjectName"_s, file(u"gone.gvw"_s));
        host.wizard.back();
        compareBoxes(boxes.seen, {}, {}, {});
        host.wizard.next();
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s,
                     u"Cannot open project\n"_s + file(u"gone.gvw"_s));
    }

    void reportsOnceOfFilesThatAreGone()
    {
        const QString project = write(u"old.gvw"_s, "DEM Layers\nFiles : gone.asc\nVector layer\n "
                                                    "File : gone.shp\n Layer name : BATI\n");
        const AnsweredBoxes boxes;

        Host host(project);

        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s,
                     u"The project names files that do not exist\n"_s + file(u"gone.shp"_s) +
                         u'\n' + file(u"gone.asc"_s));
        QCOMPARE(host.buildings()->text() + host.dtm()->text(), QString());
    }

    void refusesOnNext_data()
    {
        const Cases<QByteArray, QString, QString, QString> row(
            {"geometry", "lost", "message", "noData"});
        const QString number = u" -9999,5 "_s;
        const QString vector = u"n.geojson"_s;
        const QString dtm = u"grid.asc"_s;
        row("buildings gone", Square, vector,
            u"This file can't be open as a vector file\n"_s + file(vector), number);
        row("terrain gone", Square, dtm, u"Cannot open DTM\n"_s + file(dtm), number);
        row("no number", Square, {}, "The no-data value is not a number.", "abc");
        row("no place", Nowhere, {}, "No building of this layer has a position\nn", number);
    }

    void refusesOnNext()
    {
        QFETCH(QByteArray, geometry);
        QFETCH(QString, lost);
        QFETCH(QString, message);
        QFETCH(QString, noData);
        Host host;
        const AnsweredBoxes boxes;
        host.page->openVector(write(u"n.geojson"_s, features({geometry})));
        dropFiles(host.page, {grid(), plain()});
        QVERIFY(host.canGoOn());
        host.noData()->setText(noData);
        if (!lost.isEmpty())
            QVERIFY(QFile::remove(file(lost)));

        host.wizard.next();

        QCOMPARE(host.wizard.currentId(), 1);
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s, message);
        QVERIFY(host.parameters.isEmpty());
        QVERIFY(vlt::platform::wizardSettings()->allKeys().isEmpty());
    }

    void takesDropsAndTypedPaths()
    {
        Host host;
        AnsweredBoxes boxes;
        dropFiles(host.page, {grid()});
        QCOMPARE(host.dtm()->text(), grid());
        QCOMPARE(host.buildings()->text(), QString());
        dropFiles(host.page, {plain()});
        QCOMPARE(host.buildings()->text(), plain());
        QCOMPARE(host.dtm()->text(), grid());
        QVERIFY2(host.info(u"Dtm"_s).startsWith(u"2 \u00d7 2 pixels"_s),
                 qPrintable(host.info(u"Dtm"_s)));

        dropFiles(host.page, {write(u"notes.txt"_s, "no buildings")});
        dropFiles(host.page, {write(u"p.geojson"_s, features({Point}))});
        QCOMPARE(boxes.seen.size(), 2);
        QCOMPARE(host.buildings()->text(), plain());
        QCOMPARE(host.layer()->count(), 1);
        QVERIFY(host.canGoOn());
        dropFiles(host.page, {twoLayers()});
        QCOMPARE(host.buildings()->text(), twoLayers());
        QCOMPARE(host.layer()->count(), 2);
        boxes.seen.clear();

        host.buildings()->setText(file(u"gone.shp"_s)); // unfinished path: no message
        host.noData()->setFocus();
        QCOMPARE(host.wizard.currentId(), 1);
        QTest::keyClick(host.buildings(), Qt::Key_Return);
        compareBoxes(boxes.seen, QMessageBox::Warning, u"Error !!!"_s,
                     u"This file can't be open as a vector file\n"_s + file(u"gone.shp"_s));
        host.buildings()->setText(twoLayers());
        QTest::keyClick(host.buildings(), Qt::Key_Return);
        QCOMPARE(host.layer()->count(), 2);
        host.buildings()->setText(plain());
        host.wizard.next(); // Next opens the typed file
        QCOMPARE(host.wizard.currentId(), 2);
        QCOMPARE(host.parameters.value(u"Layer"_s).toString(), u"plain é"_s);
    }
};

QTEST_MAIN(tst_BuildingsSource)
#include "tst_BuildingsSource.moc"
