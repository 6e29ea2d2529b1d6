#include "buildings/EmptyFileListModel.h"
#include "buildings/FileListModel.h"
#include "support/Cases.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;

namespace {

using Counts = QList<int>; ///< images, rows, ticked

Counts lastOf(const QSignalSpy &updated)
{
    Counts counts;
    if (!updated.isEmpty()) {
        for (const QVariant &count : updated.last())
            counts << count.toInt();
    }
    return counts;
}

} // namespace

/// The table of texture images.
class tst_TextureList : public QObject
{
    Q_OBJECT

    static QList<FileEntry> images()
    {
        return {{u"/t/Nord/wall 3,5m.png"_s, 3.5, 0, u"Nord"_s, true, {}},
                {u"/t/Sud/roof_12.png"_s, 12, 1, u"Sud"_s, true, {}},
                {u"GTIFF_DIR:2:/t/Sud/pages.tif"_s, 1234567.8, 3, u"Sud"_s, false, u"Page 2"_s}};
    }

private Q_SLOTS:
    void showsFourColumns()
    {
        FileListModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setEntries(images());

        QStringList row;
        for (int column = 0; column < model.columnCount(); ++column)
            row << model.index(2, column).data().toString();
        QCOMPARE(row, QStringList({{}, u"pages.tif (Page 2)"_s, u"1234567.8"_s, u"Sud"_s}));
        QVERIFY(!model.index(0, 1).data(Qt::CheckStateRole).isValid());
        QVERIFY(!(model.flags(model.index(0, 1)) & Qt::ItemIsEditable));
    }

    void takesTicksAndHeightsOnly_data()
    {
        const Cases<int, int, QVariant, bool, bool, double> table(
            {"column", "role", "value", "isTaken", "used", "height"});
        const auto row = [&table](const char *name, int column, int role, const QVariant &value,
                                  bool isTaken, bool used = true, double height = 12) {
            table(name, column, role, value, isTaken, used, height);
        };
        row("untick", 0, Qt::CheckStateRole, 0, true, false);
        row("tick", 0, Qt::CheckStateRole, 2, true);
        row("half a tick", 0, Qt::CheckStateRole, 1, true, false);
        row("false", 0, Qt::EditRole, false, true, false);
        row("one is true", 0, Qt::EditRole, 1, true);
        row("a number", 2, Qt::EditRole, 2.25, true, true, 2.25);
        row("a text", 2, Qt::EditRole, u"-1e3"_s, true, true, -1000);
        row("a text as a tick", 2, Qt::CheckStateRole, u"7"_s, true, true, 7);
        row("letters", 2, Qt::EditRole, u"abc"_s, false);
        row("nothing", 2, Qt::EditRole, QString(), false);
        row("not a number", 2, Qt::EditRole, u"nan"_s, false);
        row("another column", 1, Qt::EditRole, u"x"_s, false);
        row("another role", 0, Qt::DisplayRole, false, false);
    }
    void takesTicksAndHeightsOnly()
    {
        FileListModel model;
        model.setEntries(images());
        model.setFilter(u"roof"_s); // row 0 is not image 0
        const QSignalSpy changed(&model, &FileListModel::dataChanged);
        const QSignalSpy updated(&model, &FileListModel::updated);
        QFETCH(const int, column);
        QFETCH(const int, role);
        QFETCH(const QVariant, value);
        QFETCH(const bool, isTaken);

        QCOMPARE(model.setData(model.index(0, column), value, role), isTaken);

        const FileEntry &roof = model.entries().at(1);
        QTEST(roof.used, "used");
        QTEST(roof.height, "height");
        QCOMPARE(changed.size(), isTaken ? 1 : 0);
        const bool isTick = isTaken && column == 0;
        QCOMPARE(lastOf(updated), isTick ? Counts({3, 1, roof.used ? 2 : 1}) : Counts());
        QVERIFY(model.entries().at(0).used && !model.entries().at(2).used);
    }

    void showsWhatTheFilterMatches_data()
    {
        using Rows = QList<int>;
        const Cases<QString, QList<int>> row({"filter", "shown"});
        row("empty", {}, Rows{0, 1, 2});
        row("decimal comma, name and height", "3,5", Rows{0});
        row("decimal point, height", "3.5", Rows{0});
        row("a point is no wildcard", "1.2", Rows{2}); // 1.23457e+06
        row("expression on the height", "^1[0-9]$", Rows{1});
        row("part of the height", "2", Rows{1, 2});
        row("six digits", "1,23457e", Rows{2});
        row("not the seventh", "1234567", Rows{});
        row("file", "roof_", Rows{1});
        row("folder", "Sud", Rows{1, 2});
        row("description", "Page", Rows{2});
        row("letters as typed", "page 2", Rows{});
        row("no expression for names", "r..f", Rows{});
        row("format of an image in a file", "GTIFF", Rows{});
        row("broken expression", "(", Rows{});
    }
    void showsWhatTheFilterMatches()
    {
        FileListModel model;
        const QSignalSpy updated(&model, &FileListModel::updated);
        const QSignalSpy reset(&model, &FileListModel::modelReset);
        QFETCH(const QString, filter);
        QFETCH(const QList<int>, shown);
        const QList<FileEntry> all = images();
        model.setFilter(filter);
        QCOMPARE(lastOf(updated), Counts({0, 0, 0}));

        model.setEntries(all);

        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row)
            rows << model.index(row, FileListModel::FileColumn).data(Qt::ToolTipRole).toString();
        QStringList expected;
        for (const int place : shown)
            expected << all.at(place).file.filePath();
        QCOMPARE(rows, expected);
        QCOMPARE(lastOf(updated), Counts({3, static_cast<int>(shown.size()), 2}));
        QCOMPARE(reset.size(), 2);
    }

    void ticksManyRowsAtOnce()
    {
        FileListModel model;
        model.setEntries(images());
        model.setFilter(u"Sud"_s);
        const QSignalSpy updated(&model, &FileListModel::updated);
        const QSignalSpy changed(&model, &FileListModel::dataChanged);

        model.setUsed({model.index(1, 0), model.index(0, 3)}, true);

        QCOMPARE(QList<QVariantList>(updated), QList<QVariantList>({{3, 2, 3}}));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), model.index(0, 0));
        QCOMPARE(changed.at(0).at(1).toModelIndex(), model.index(1, 0));
        model.setUsed({}, false);
        QCOMPARE(updated.size(), 1);
        QCOMPARE(model.selectedCount(), 3);
    }

    void hintsInRedWhileThereIsNone()
    {
        EmptyFileListModel model;

        QCOMPARE(model.rowCount() * model.columnCount(), 1);
        QVERIFY(model.index(0, 0).data().toString().startsWith(u"Vous devez sélectionner"_s));
        QCOMPARE(model.index(0, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
    }
};

QTEST_GUILESS_MAIN(tst_TextureList)
#include "tst_TextureList.moc"
