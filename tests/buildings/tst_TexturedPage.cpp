#include "LayerPage.h"
#include "buildings/EmptyFileListModel.h"
#include "buildings/ui/TextureSortModel.h"
#include "buildings/ui/VltAddTexbTexturedPage.h"
#include "gui/FileDialogAnswer.h"
#include "support/Cases.h"
#include "support/Patience.h"

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>

#include <gdal_priv.h>

#include <array>

using namespace layerpage;
using vlt::buildings::FileEntry;
using vlt::buildings::FileListModel;

namespace {

const QString Group = u"AddTexbTexturedPage"_s;

enum Images { Placed, Unplaced, Broken };

/// An image of 400 x 200 pixels of one color, half a metre wide if it is placed.
void writeImage(const QString &path, Images kind)
{
    constexpr std::array Color = {0x80, 0x40, 0x20};
    constexpr int EpsgCode = 32630;
    GDALAllRegister();
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    const GDALDatasetUniquePtr image(
        driver->Create(qPrintable(path), 400, 200, 3, GDT_Byte, nullptr));
    for (int band = 1; band <= 3; ++band)
        image->GetRasterBand(band)->Fill(Color.at(static_cast<std::size_t>(band - 1)));
    if (kind == Placed) {
        std::array place = {500000.0, 0.5, 0.0, 5000000.0, 0.0, -0.5};
        image->SetGeoTransform(place.data());
        OGRSpatialReference system;
        system.importFromEPSG(EpsgCode);
        image->SetSpatialRef(&system);
    }
    image->FlushCache();
    if (kind == Broken)
        QFile::resize(path, 200);
}

class TexturedPage : public Page<VltAddTexbTexturedPage>
{
public:
    TexturedPage() : Page({}, {}) {}

    QTableView *table() { return child<QTableView>(u"m_pwFiles"_s); }
    QLineEdit *filter() { return line(u"m_pwLeFilter"_s); }
    QComboBox *structure() { return combo(u"m_pwCbDataStructure"_s); }
    QString status() { return text(u"m_pwLblFilter"_s); }

    bool isHintShown()
    {
        return qobject_cast<vlt::buildings::EmptyFileListModel *>(table()->model()) != nullptr;
    }

    QModelIndex cell(int row, int column) { return table()->model()->index(row, column); }

    /// The names of the files in the order of the table; ticked ones have a star.
    QStringList files()
    {
        QStringList names;
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            const bool isUsed = cell(row, FileListModel::UseColumn).data(Qt::CheckStateRole) == 2;
            names += (isUsed ? u"*"_s : QString()) +
                     cell(row, FileListModel::FileColumn).data().toString();
        }
        return names;
    }

    void selectRow(int row)
    {
        table()->selectionModel()->select(cell(row, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    QList<FileEntry> published() { return shared.value(u"FileList"_s).value<QList<FileEntry>>(); }
};

} // namespace

class tst_TexturedPage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

    /// A page that lists roof_2 (height 2), roof_10 (10) and the wall (3.5 m).
    std::unique_ptr<TexturedPage> pageWithRoofs() const
    {
        auto page = std::make_unique<TexturedPage>();
        dropFiles(page.get(), {path(u"a/roofs/roof_2.png"_s)});
        return page;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &name :
             {u"a/roofs/roof_2.png"_s, u"a/roofs/roof_10.png"_s, u"a/roofs/Wall 3,5m.png"_s,
              u"a/roofs/alone.jpg"_s, u"a/walls/wall_1.png"_s, u"b/doors/door_1.png"_s})
            writeFile(m_dir.filePath(name));
    }

    void init() { vlt::platform::wizardSettings()->clear(); }

    void listsTheImagesAroundATemplate_data()
    {
        const Cases<int, int> row({"structure", "count"});
        row("same folder", 0, 3);
        row("folders at the same level", 1, 4);
        row("folders at two levels", 2, 5);
        row("none chosen", 0, 0);
    }

    void listsTheImagesAroundATemplate()
    {
        QFETCH(int, structure);
        QFETCH(int, count);
        vlt::platform::wizardSettings()->setValue(u"LastUsedDir"_s, path(u"b"_s));
        TexturedPage page;
        const QSignalSpy completeChanged(&page, &QWizardPage::completeChanged);
        page.structure()->setCurrentIndex(structure);
        const FileDialogAnswer answer(count > 0 ? path(u"a/roofs/roof_2.png"_s) : QString());

        page.press(u"m_pwPbTemplate"_s);

        QCOMPARE(answer.caption, u"Select one of the texture files"_s);
        QCOMPARE(answer.directory, path(u"b"_s));
        QCOMPARE(answer.filters, QStringList{u"Raster Files (*.*)"_s});
        QCOMPARE(page.isComplete(), count > 0);
        QCOMPARE(completeChanged.isEmpty(), count == 0);
        QCOMPARE(page.isHintShown(), count == 0);
        QVERIFY(page.status().contains(u"Images: %1 "_s.arg(count)));
        page.structure()->setCurrentIndex(1 - structure / 2); // the structure alone changes nothing
        QVERIFY(page.status().contains(u"Images: %1 "_s.arg(count)));
        QVERIFY(page.validatePage());
        QCOMPARE(vlt::platform::wizardSettings()->value(u"LastUsedDir"_s).toString(),
                 path(count > 0 ? u"a/roofs"_s : u"b"_s));
    }

    void countsAtEachKeystroke()
    {
        const auto page = pageWithRoofs();
        const QString status = u"Images: 3  \u2022  shown: %1  \u2022  used: 3"_s;
        const auto typed = [&page](char key) {
            QTest::keyClick(page->filter(), key);
            return page->status();
        };

        QCOMPARE(page->status(), status.arg(3));
        QCOMPARE(typed('r'), status.arg(3)); // the folder matches
        page->filter()->clear();
        QCOMPARE(typed('3'), status.arg(1));
        QVERIFY(!page->isHintShown());
        QCOMPARE(typed('x'), status.arg(0) + u"  \u2022  no image matches the filter"_s);
        QVERIFY(!page->isHintShown() && !page->isComplete());
        QTest::keyClick(page->filter(), Qt::Key_Backspace);
        QVERIFY(!page->isHintShown() && page->isComplete());
    }

    void sortsByItsHeaders()
    {
        const QStringList byName{u"*roof_2.png"_s, u"*roof_10.png"_s, u"*Wall 3,5m.png"_s};
        const QStringList byHeight{u"*roof_2.png"_s, u"*Wall 3,5m.png"_s, u"*roof_10.png"_s};
        const auto page = pageWithRoofs();
        QHeaderView *header = page->table()->horizontalHeader();
        const auto filesAfterClick = [&page, header](int column) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(column) + 20, header->height() / 2});
            return page->files();
        };

        QCOMPARE(page->files(), byHeight);
        QCOMPARE(filesAfterClick(FileListModel::FileColumn), byName);
        page->filter()->setText(u"none such"_s);
        page->filter()->clear();
        QCOMPARE(page->files(), byName);
        QCOMPARE(header->sortIndicatorSection(), int(FileListModel::FileColumn));
        QCOMPARE(filesAfterClick(FileListModel::FileColumn),
                 QStringList(byName.crbegin(), byName.crend()));
        QCOMPARE(filesAfterClick(FileListModel::HeightColumn), byHeight);
    }

    void showsEachImageAndWhereItLies_data()
    {
        const Cases<Images, QString, bool, QString> row({"kind", "note", "hasProblem", "pixel"});
        row("placed", Placed, u"200 m \u00d7 100 m \u00b7 EPSG:32630"_s, false, u"#ff804020"_s);
        row("without a place", Unplaced,
            u"no position on the ground: it cannot be shown on buildings"_s, true, u"#ff804020"_s);
        row("broken", Broken, u"This image cannot be read (.*)"_s, true, QString());
    }

    void showsEachImageAndWhereItLies()
    {
        QFETCH(const Images, kind);
        QTemporaryDir folder;
        const QString file = folder.filePath(u"roof_3.tif"_s);
        writeImage(file, kind);
        TexturedPage page;
        dropFiles(&page, {file});
        const QModelIndex cell = page.cell(0, FileListModel::FileColumn);
        using Model = vlt::buildings::TextureSortModel;

        QTRY_VERIFY_WITH_TIMEOUT(!cell.data(Model::NoteRole).toString().isEmpty(), PatienceMs);

        QFETCH(const QString, note);
        const QRegularExpression expected(QRegularExpression::anchoredPattern(note));
        QVERIFY2(expected.match(cell.data(Model::NoteRole).toString()).hasMatch(),
                 qPrintable(cell.data(Model::NoteRole).toString()));
        QTEST(cell.data(Model::HasProblemRole).toBool(), "hasProblem");
        const auto picture = cell.data(Model::PictureRole).value<QImage>();
        QTEST(picture.isNull() ? QString() : picture.pixelColor(20, 10).name(QColor::HexArgb),
              "pixel");
        QVERIFY(cell.data(Qt::ToolTipRole).toString().contains(note.left(20)));
    }

    void copiesRowsAsTheyAreShown()
    {
        const auto page = pageWithRoofs();
        page->table()->setLocale(QLocale(u"fr"_s));
        page->table()->sortByColumn(FileListModel::HeightColumn, Qt::DescendingOrder);
        page->table()->model()->setData(page->cell(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        const QString header = u"Use\tFile\tHeight\tDirectory\n"_s;
        const QString wall = u"x\tWall 3,5m.png\t3,5\troofs\n"_s;
        const QString roof = u"x\troof_2.png\t2\troofs\n"_s;

        QVERIFY(QTest::qWaitForWindowActive(page.get(), PatienceMs));
        page->table()->setFocus();
        QTest::keySequence(page->table(), QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 header + u"\troof_10.png\t10\troofs\n"_s + wall + roof);
        page->selectRow(2);
        page->selectRow(1);
        const QList<QAction *> actions = page->table()->actions();
        QCOMPARE(actions.size(), 1);
        QCOMPARE(actions.constFirst()->text(), u"copy"_s);
        actions.constFirst()->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), header + wall + roof);

        page->filter()->setText(u"none such"_s);
        actions.constFirst()->trigger(); // nothing is selected
        QCOMPARE(QGuiApplication::clipboard()->text(), header + wall + roof);
    }

    void takesTypedHeights_data()
    {
        const Cases<QString, double> row({"typed", "height"});
        row("comma", "4,25", 4.25);
        row("point", "4.25", 4.25);
        row("basement", "-1", -1);
        row("a word", "abc", 2);
        row("no finite number", "inf", 2);
    }

    void takesTypedHeights()
    {
        QFETCH(QString, typed);
        QFETCH(double, height);
        const auto page = pageWithRoofs();
        page->table()->sortByColumn(FileListModel::FileColumn, Qt::AscendingOrder);
        const QModelIndex cell = page->cell(0, FileListModel::HeightColumn);

        QVERIFY(QTest::qWaitForWindowActive(page.get(), PatienceMs));
        page->table()->setCurrentIndex(cell);
        page->table()->edit(cell);
        auto *editor = page->table()->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QCOMPARE(editor->selectedText(), u"2"_s);
        QTest::keyClicks(editor, typed);
        page->validatePage(); // takes the typed height without Return

        QCOMPARE(cell.data().toDouble(), height);
        const QList<FileEntry> published = page->published();
        QVERIFY(std::any_of(published.begin(), published.end(), [height](const FileEntry &entry) {
            return entry.fileName() == u"roof_2.png"_s && entry.height == height;
        }));
    }

    void ticksManyAtOnce()
    {
        const auto page = pageWithRoofs();
        page->table()->sortByColumn(FileListModel::FileColumn, Qt::AscendingOrder);
        const auto afterSpace = [&page] {
            QTest::keyClick(page->table(), Qt::Key_Space);
            return page->files();
        };
        const QStringList all = {u"*roof_2.png"_s, u"*roof_10.png"_s, u"*Wall 3,5m.png"_s};
        const QStringList some = {u"roof_2.png"_s, u"*roof_10.png"_s, u"Wall 3,5m.png"_s};

        QCOMPARE(afterSpace(), all); // none selected
        page->selectRow(0);
        page->selectRow(2);
        QCOMPARE(afterSpace(), some);
        page->table()->sortByColumn(FileListModel::UseColumn, Qt::AscendingOrder);
        QCOMPARE(page->files().constFirst(), u"*roof_10.png"_s);
        page->table()->sortByColumn(FileListModel::FileColumn, Qt::AscendingOrder);
        page->selectRow(1);
        QCOMPARE(afterSpace(), all);

        page->filter()->setText(u"roof_"_s);
        page->press(u"m_pwPbUseNone"_s);
        QCOMPARE(page->status(), u"Images: 3  \u2022  shown: 2  \u2022  used: 1"_s);
        page->press(u"m_pwPbUseAll"_s);
        QCOMPARE(page->status(), u"Images: 3  \u2022  shown: 2  \u2022  used: 3"_s);
    }

    void remembersTheList()
    {
        QVariantMap stored =
            values(u"DataStructure=2 Filter=west FileCount=3 fullPath_0=/t/a,é.tif shortName_0=t "
                   "height_0=3.25 unit_0=7 used_0=false fullPath_1=/t/b.tif height_1=100000.125"_s);
        stored[u"description_0"_s] = u"west side"_s;
        remember(Group, stored);
        remember(Group, {{u"shortName_2"_s, u"without a path"_s}});
        TexturedPage page;
        QCOMPARE(page.structure()->currentIndex(), 2);
        QCOMPARE(page.filter()->text(), u"west"_s);
        QCOMPARE(page.files(), QStringList{u"a,é.tif (west side)"_s});
        QCOMPARE(page.status(), u"Images: 2  \u2022  shown: 1  \u2022  used: 1"_s);

        QVERIFY(page.validatePage());

        stored.insert(values(u"FileCount=2 shortName_1= unit_1=0 used_1=true description_1="_s));
        QCOMPARE(otherThan(Group, stored), QStringList());
        const auto settings = vlt::platform::wizardSettings();
        settings->beginGroup(Group);
        QCOMPARE(settings->childKeys(), stored.keys());
        QCOMPARE(page.published().size(), 2);
        QCOMPARE(page.published().constFirst().unit, 7);
        QVERIFY(!page.published().constFirst().used);

        // Later saves compare with the last one, and notice that another program has saved.
        page.table()->model()->setData(page.cell(0, 0), Qt::Checked, Qt::CheckStateRole);
        QVERIFY(page.validatePage());
        QCOMPARE(settings->value(u"used_0"_s).toString(), u"true"_s);
        settings->setValue(u"fullPath_1"_s, u"/t/other.tif"_s);
        QVERIFY(page.validatePage());
        QCOMPARE(settings->value(u"fullPath_1"_s).toString(), u"/t/b.tif"_s);
    }

    void bearsDamagedSettings()
    {
        remember(Group, values(u"DataStructure=9 FileCount=2000000000"_s));

        TexturedPage page;

        QCOMPARE(page.structure()->currentIndex(), 0);
        QVERIFY(page.isHintShown());
    }
};

QTEST_MAIN(tst_TexturedPage)
#include "tst_TexturedPage.moc"
