#include "buildings/EmptyFileListModel.h"
#include "buildings/ui/VltAddTexbTexturedPage.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "platform/Settings.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using vlt::buildings::FileEntry;
using vlt::buildings::FileListModel;

namespace {

const QString Prefix = u"AddTexbTexturedPage/"_s;

class Page : public VltAddTexbTexturedPage
{
public:
    Page() : VltAddTexbTexturedPage(nullptr, shared, QString(), u"en"_s)
    {
        initializePage();
        resize(1000, 600);
        show();
        activateWindow();
    }

    QTableView *table() { return findChild<QTableView *>(u"m_pwFiles"_s); }
    QLineEdit *filter() { return findChild<QLineEdit *>(u"m_pwLeFilter"_s); }
    QComboBox *structure() { return findChild<QComboBox *>(u"m_pwCbDataStructure"_s); }
    QString status() { return findChild<QLabel *>(u"m_pwLblFilter"_s)->text(); }
    void press(const QString &button) { findChild<QPushButton *>(button)->click(); }

    bool isHintShown()
    {
        return qobject_cast<vlt::buildings::EmptyFileListModel *>(table()->model()) != nullptr;
    }

    QModelIndex cell(int row, int column) { return table()->model()->index(row, column); }

    /// The names of the files in the order of the table, ticked ones with a star.
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

    SharedParameters shared;
};

} // namespace

class TestTexturedPage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

    /// A page that lists roof_2 (height 2), roof_10 (10) and the wall (3.5 m).
    std::unique_ptr<Page> pageWithRoofs() const
    {
        auto page = std::make_unique<Page>();
        dropFiles(page.get(), {path(u"a/roofs/roof_2.png"_s)});
        return page;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &name :
             {u"a/roofs/roof_2.png"_s, u"a/roofs/roof_10.png"_s, u"a/roofs/Wall 3,5m.png"_s,
              u"a/roofs/alone.jpg"_s, u"a/walls/wall_1.png"_s, u"b/doors/door_1.png"_s}) {
            QVERIFY(QDir().mkpath(QFileInfo(path(name)).absolutePath()));
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void init() { vlt::platform::wizardSettings()->clear(); }

    void listsTheImagesAroundATemplate_data()
    {
        QTest::addColumn<int>("structure");
        QTest::addColumn<QString>("templateName");
        QTest::addColumn<int>("count");

        QTest::newRow("same folder") << 0 << u"a/roofs/roof_2.png"_s << 3;
        QTest::newRow("folders at the same level") << 1 << u"a/roofs/roof_2.png"_s << 4;
        QTest::newRow("folders at two levels") << 2 << u"a/roofs/roof_2.png"_s << 5;
        QTest::newRow("no other of its suffix") << 0 << u"a/roofs/alone.jpg"_s << 1;
        QTest::newRow("none chosen") << 0 << QString() << 0;
    }

    void listsTheImagesAroundATemplate()
    {
        QFETCH(int, structure);
        QFETCH(QString, templateName);
        QFETCH(int, count);
        vlt::platform::wizardSettings()->setValue(u"LastUsedDir"_s, path(u"b"_s));
        Page page;
        const QSignalSpy completeChanged(&page, &QWizardPage::completeChanged);
        page.structure()->setCurrentIndex(structure);
        const FileDialogAnswer answer(templateName.isEmpty() ? QString() : path(templateName));

        page.press(u"m_pwPbTemplate"_s);

        QCOMPARE(answer.caption, u"Select one of the texture files"_s);
        QCOMPARE(answer.directory, path(u"b"_s));
        QCOMPARE(answer.filters, QStringList{u"Raster Files (*.*)"_s});
        QCOMPARE(page.isComplete(), count > 0);
        QCOMPARE(completeChanged.isEmpty(), count == 0);
        QCOMPARE(page.isHintShown(), count == 0);
        QVERIFY(page.status().contains(u"Images: %1 "_s.arg(count)));
        page.structure()->setCurrentIndex(1 - structure / 2); // alone it changes nothing
        QVERIFY(page.status().contains(u"Images: %1 "_s.arg(count)));
        QVERIFY(page.validatePage());
        QCOMPARE(vlt::platform::wizardSettings()->value(u"LastUsedDir"_s).toString(),
                 QFileInfo(path(count > 0 ? templateName : u"b/x"_s)).absolutePath());
    }

    void countsAtEachKeystroke()
    {
        const auto page = pageWithRoofs();
        const auto typed = [&page](char key) {
            QTest::keyClick(page->filter(), key);
            return page->status();
        };

        QCOMPARE(page->status(), u"Images: 3  \u2022  shown: 3  \u2022  used: 3"_s);
        QCOMPARE(typed('r'), u"Images: 3  \u2022  shown: 3  \u2022  used: 3"_s); // the folder
        page->filter()->clear();
        QCOMPARE(typed('3'), u"Images: 3  \u2022  shown: 1  \u2022  used: 3"_s);
        QVERIFY(!page->isHintShown());
        QCOMPARE(typed('x'), u"Images: 3  \u2022  shown: 0  \u2022  used: 3  \u2022  "
                             "no image matches the filter"_s);
        QVERIFY(page->isHintShown() && !page->isComplete());
        QTest::keyClick(page->filter(), Qt::Key_Backspace);
        QVERIFY(!page->isHintShown() && page->isComplete());
    }

    void sortsByItsHeaders_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("ascending");

        QTest::newRow("names") << int(FileListModel::FileColumn)
                               << QStringList{u"*roof_2.png"_s, u"*roof_10.png"_s,
                                              u"*Wall 3,5m.png"_s};
        QTest::newRow("heights") << int(FileListModel::HeightColumn)
                                 << QStringList{u"*roof_2.png"_s, u"*Wall 3,5m.png"_s,
                                                u"*roof_10.png"_s};
    }

    void sortsByItsHeaders()
    {
        QFETCH(int, column);
        QFETCH(QStringList, ascending);
        const auto page = pageWithRoofs();
        QHeaderView *header = page->table()->horizontalHeader();
        const auto click = [header, column] {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(column) + 20, header->height() / 2});
        };

        click();
        QCOMPARE(page->files(), ascending);
        page->filter()->setText(u"none such"_s); // the hint in between
        page->filter()->clear();
        QCOMPARE(page->files(), ascending);
        QCOMPARE(header->sortIndicatorSection(), column);
        click();
        QCOMPARE(page->files(), QStringList(ascending.crbegin(), ascending.crend()));
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

        QVERIFY(QTest::qWaitForWindowActive(page.get()));
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
        actions.constFirst()->trigger(); // nothing to copy
        QCOMPARE(QGuiApplication::clipboard()->text(), header + wall + roof);
    }

    void takesTypedHeights_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("height");

        QTest::newRow("comma") << u"4,25"_s << 4.25;
        QTest::newRow("point") << u"4.25"_s << 4.25;
        QTest::newRow("basement") << u"-1"_s << -1.0;
        QTest::newRow("a word") << u"abc"_s << 2.0;
        QTest::newRow("no finite number") << u"inf"_s << 2.0;
    }

    void takesTypedHeights()
    {
        QFETCH(QString, typed);
        QFETCH(double, height);
        const auto page = pageWithRoofs();
        page->table()->sortByColumn(FileListModel::FileColumn, Qt::AscendingOrder);
        const QModelIndex cell = page->cell(0, FileListModel::HeightColumn);

        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        page->table()->setCurrentIndex(cell);
        page->table()->edit(cell);
        auto *editor = page->table()->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QCOMPARE(editor->selectedText(), u"2"_s);
        QTest::keyClicks(editor, typed);
        page->validatePage(); // without Return

        QCOMPARE(cell.data().toDouble(), height);
        const auto published = page->shared.value(u"FileList"_s).value<QList<FileEntry>>();
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
        QMap<QString, QString> stored = {
            {u"DataStructure"_s, u"2"_s},
            {u"Filter"_s, u"west"_s},
            {u"FileCount"_s, u"3"_s},
            {u"fullPath_0"_s, u"/t/a, \u00e9.tif"_s},
            {u"shortName_0"_s, u"t"_s},
            {u"height_0"_s, u"3.25"_s},
            {u"unit_0"_s, u"7"_s},
            {u"used_0"_s, u"false"_s},
            {u"description_0"_s, u"west side"_s},
            {u"fullPath_1"_s, u"/t/b.tif"_s},
            {u"height_1"_s, u"100000.125"_s},
        };
        const auto settings = vlt::platform::wizardSettings();
        for (auto value = stored.cbegin(); value != stored.cend(); ++value)
            settings->setValue(Prefix + value.key(), value.value());
        settings->setValue(Prefix + u"shortName_2"_s, u"without a path"_s);
        Page page;
        QCOMPARE(page.structure()->currentIndex(), 2);
        QCOMPARE(page.filter()->text(), u"west"_s);
        QCOMPARE(page.files(), QStringList{u"a, \u00e9.tif (west side)"_s});
        QCOMPARE(page.status(), u"Images: 2  \u2022  shown: 1  \u2022  used: 1"_s);

        QVERIFY(page.validatePage());

        stored.insert({{u"FileCount"_s, u"2"_s},
                       {u"shortName_1"_s, QString()},
                       {u"unit_1"_s, u"0"_s},
                       {u"used_1"_s, u"true"_s},
                       {u"description_1"_s, QString()}});
        settings->beginGroup(u"AddTexbTexturedPage"_s);
        QMap<QString, QString> written;
        for (const QString &key : settings->childKeys())
            written.insert(key, settings->value(key).toString());
        QCOMPARE(written, stored);
        const auto published = page.shared.value(u"FileList"_s).value<QList<FileEntry>>();
        QCOMPARE(published.size(), 2);
        QCOMPARE(published.constFirst().unit, 7);
        QVERIFY(!published.constFirst().used);
    }

    void bearsDamagedSettings()
    {
        const auto settings = vlt::platform::wizardSettings();
        settings->setValue(Prefix + u"DataStructure"_s, 9);
        settings->setValue(Prefix + u"FileCount"_s, 2000000000);

        Page page;

        QCOMPARE(page.structure()->currentIndex(), 0);
        QVERIFY(page.isHintShown());
    }
};

QTEST_MAIN(TestTexturedPage)
#include "tst_TexturedPage.moc"
