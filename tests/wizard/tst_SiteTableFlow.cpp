#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "support/Cases.h"
#include "support/Patience.h"
#include "tables/RoleModel.h"
#include "wizard/LayerFlow.h"

#include <QComboBox>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace layerflow;

namespace {

/// The layer in the icon is that of the command line, which finds the choices of the user.
void compareWithCommandLine(const WizardOnSitePage &flow, const QString &table)
{
    if (flow.icon->isEnabled())
        QCOMPARE(readFile(flow.icon->layerFile()), layerOfCommandLine(u"site"_s, table, {}));
}

} // namespace

/// What the page of sites shows of its table, and how the user corrects it.
class tst_SiteTableFlow : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(makeInstallation());
        QVERIFY(qputenv("XDG_DATA_HOME", QFile::encodeName(m_dir.filePath(u"data"_s))));
    }
    void init() { forgetSettings(); }

    void showsColumnsAndProblemsByRow()
    {
        WizardOnSitePage flow;

        dropFiles(flow.page, {Samples + u"/sites_with_problems.csv"_s});

        auto *table = flow.widget<QTableView>(u"m_pwTvProblems"_s);
        QTRY_COMPARE_WITH_TIMEOUT(table->model()->rowCount(), 3, PatienceMs);
        QCOMPARE(table->model()->index(0, 0).data(), u"5"_s);
        QCOMPARE(table->model()->index(0, 1).data(), u"Longitude"_s);
        QVERIFY(!table->isVisible());
        QTest::keyClick(flow.widget<QToolButton>(u"m_pwTbFold"_s), Qt::Key_Space);
        QVERIFY(table->isVisible());
    }

    void followsTheColumnsThatTheUserChooses_data()
    {
        const Cases<QString, QString, QString, bool> row(
            {"meaning", "column", "summary", "hasLayer"});
        row("no azimuth, no transmitters", "Azimuth", "none", "sites placed: 4 of 4", true);
        row("another azimuth", "Azimuth", "Old", "sites placed: 2 of 2", true);
        row("no latitude", "Y coordinate", "none", "no site can be placed", false);
    }

    void followsTheColumnsThatTheUserChooses()
    {
        QFETCH(QString, meaning);
        QFETCH(QString, column);
        QFETCH(QString, summary);
        QFETCH(bool, hasLayer);
        const QString table =
            writeFile(m_dir.filePath(u"chosen.csv"_s), "Site;Longitude;Latitude;Azimuth;Old\n"
                                                       "a;-3.3;47.7;0;10\na;-3.3;47.7;120;130\n"
                                                       "b;-3.4;47.8;0;10\nb;-3.4;47.8;120;130\n");
        WizardOnSitePage flow;
        dropFiles(flow.page, {table});
        auto *model = qobject_cast<vlt::tables::RoleModel *>(
            flow.widget<QTreeView>(u"m_pwTrRoles"_s)->model());
        const auto chosen = [&] {
            const QModelIndex role =
                model->match(model->index(0, 0), Qt::DisplayRole, meaning).value(0);
            return role.siblingAtColumn(vlt::tables::RoleModel::Name);
        };
        const auto *fold = flow.widget<QToolButton>(u"m_pwTbFold"_s);
        QTRY_VERIFY_WITH_TIMEOUT(fold->text().contains(u"sites placed: 2 of 2"_s), PatienceMs);
        const QByteArray before = readFile(flow.icon->layerFile());

        QVERIFY(model->setData(chosen(), model->choices(chosen()).indexOf(column), Qt::EditRole));

        QTRY_COMPARE_WITH_TIMEOUT(chosen().data(), column, PatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(fold->text().contains(summary), PatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(flow.icon->isEnabled(), hasLayer, PatienceMs);
        QCOMPARE(hasLayer && readFile(flow.icon->layerFile()).contains("columns="), hasLayer);
        compareWithCommandLine(flow, table);
        QVERIFY(!QFile::exists(table + u".columns.json"_s));

        auto *save = flow.widget<QAbstractButton>(u"m_pwPbSaveMapping"_s);
        save->click();
        QTRY_VERIFY_WITH_TIMEOUT(!save->isEnabled() && fold->text().contains(summary), PatienceMs);
        QVERIFY(QFile::exists(table + u".columns.json"_s));
        QVERIFY(!hasLayer || !readFile(flow.icon->layerFile()).contains("columns="));
        compareWithCommandLine(flow, table);

        flow.widget<QAbstractButton>(u"m_pwPbResetMapping"_s)->click();
        QTRY_VERIFY_WITH_TIMEOUT(save->isEnabled(), PatienceMs); // the file there is to go
        save->click();
        QTRY_VERIFY_WITH_TIMEOUT(fold->text().contains(u"sites placed: 2 of 2"_s), PatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(readFile(flow.icon->layerFile()), before, PatienceMs);
        QVERIFY(!QFile::exists(table + u".columns.json"_s));
    }

    void savesTheFateOfEveryRow()
    {
        const QString path = m_dir.filePath(u"rows.csv"_s);
        writeFile(path, "Site ID,Longitude,Latitude\nA,2,45\nB,3,\n");
        WizardOnSitePage flow;
        dropFiles(flow.page, {path});
        auto *rows = flow.widget<QLabel>(u"m_pwLblRows"_s);
        QTRY_COMPARE_WITH_TIMEOUT(rows->text(), u"Rows: 2 = 1 used + 0 merged + 1 left out"_s,
                                  PatienceMs);

        const QString report = m_dir.filePath(u"report.csv"_s);
        {
            const FileDialogAnswer dialog(report);
            flow.widget<QAbstractButton>(u"m_pwPbReport"_s)->click();
        }
        const FileDialogAnswer dialog(path);
        AnsweredBoxes boxes(QMessageBox::Yes); // the dialog asks first whether to replace the file
        flow.widget<QAbstractButton>(u"m_pwPbRejects"_s)->click();

        QVERIFY(readFile(report).contains("3,left out,B,,the coordinate is empty,Latitude,rows"));
        QCOMPARE(boxes.seen.constLast().text, u"the output is one of the input files\n"_s + path);
        QVERIFY(readFile(path).contains("A,2,45"));
    }

    void appliesAndUndoesCures_data()
    {
        const Cases<QByteArray, QString, QString> row({"rows", "action", "before"});
        row("all rows", "A,-33.8,151.2\nB,-33.7,151.1\nC,-33.6,151.3\nD,-33.9,151.4\n",
            "Exchange the coordinates", "= 0 used");
        row("a row", "A,151.2,-33.8\nB,-33.7,151.1\nC,151.3,-33.6\nD,151.4,-33.9\n",
            "Exchange the coordinates of 1 row", "= 3 used");
    }
    void appliesAndUndoesCures()
    {
        QFETCH(QByteArray, rows);
        QFETCH(QString, action);
        QFETCH(QString, before);
        const QString path = m_dir.filePath(u"swapped.csv"_s);
        writeFile(path, "Site ID,Longitude,Latitude\n" + rows);
        WizardOnSitePage flow;
        const auto cure = [&flow](const QString &text) -> QAbstractButton * {
            for (auto *button : flow.page->findChildren<QAbstractButton *>(u"m_pwPbCure"_s)) {
                if (button->isVisible() && button->text() == text)
                    return button;
            }
            return nullptr;
        };
        dropFiles(flow.page, {path});
        QTRY_VERIFY_WITH_TIMEOUT(cure(action), PatienceMs);
        QCOMPARE(flow.icon->isEnabled(), before != u"= 0 used"_s);

        cure(action)->click();
        auto *counts = flow.widget<QLabel>(u"m_pwLblRows"_s);
        QTRY_VERIFY_WITH_TIMEOUT(counts->text().contains(u"= 4 used"_s), PatienceMs);
        QVERIFY(flow.icon->isEnabled());
        compareWithCommandLine(flow, path);
        QVERIFY(!cure(action));

        QTRY_VERIFY_WITH_TIMEOUT(cure(u"Undo"_s), PatienceMs);
        cure(u"Undo"_s)->click();
        QTRY_VERIFY_WITH_TIMEOUT(counts->text().contains(before), PatienceMs);
    }

    void takesTheTransmittersFromAnotherTable()
    {
        const QString path = m_dir.filePath(u"bare.csv"_s);
        const QString cells = m_dir.filePath(u"cells.csv"_s);
        writeFile(path, "Site ID,Longitude,Latitude\nA,2,45\nB,3,45\n");
        writeFile(cells, "Site,Azimuth,Height\nA,30,20\nA,150,20\nB,120,20\n");
        WizardOnSitePage flow;
        dropFiles(flow.page, {path});
        const FileDialogAnswer dialog(cells);

        auto *button = flow.widget<QAbstractButton>(u"m_pwPbSecond"_s);
        QVERIFY(button->isVisible());
        button->click();

        auto *rows = flow.widget<QLabel>(u"m_pwLblRows"_s);
        QTRY_VERIFY_WITH_TIMEOUT(rows->text().contains(u"Rows of cells.csv: 3 = 0 used + 3"_s),
                                 PatienceMs);
        QVERIFY(readFile(flow.icon->layerFile()).contains("Azimuth"));
        compareWithCommandLine(flow, path);
    }

    void warnsOfASystemThatDoesNotFitTheTable()
    {
        WizardOnSitePage flow;
        dropFiles(flow.page, {Samples + u"/sites.csv"_s});
        const auto *problems = flow.widget<QTableView>(u"m_pwTvProblems"_s)->model();
        const auto *sign = flow.widget<QLabel>(u"m_pwLblWarning"_s);
        QTRY_VERIFY_WITH_TIMEOUT(
            flow.widget<QToolButton>(u"m_pwTbFold"_s)->text().contains(u"problems: 0"_s),
            PatienceMs);
        QVERIFY(!sign->isVisible());

        auto *source = flow.widget<QComboBox>(u"m_pCBSrs"_s);
        const int metric = source->findText(u"EPSG:2154"_s, Qt::MatchContains);
        source->setCurrentIndex(metric);
        Q_EMIT source->activated(metric);

        QTRY_COMPARE_WITH_TIMEOUT(problems->rowCount(), 1, PatienceMs);
        QVERIFY(problems->index(0, 2).data().toString().contains(u"in degrees, but"_s));
        QVERIFY(sign->isVisible());
    }

    void tabGoesThroughAnUnfoldedTable()
    {
        const QString path = m_dir.filePath(u"walked.csv"_s);
        writeFile(path, "Site ID,Longitude,Latitude\nA,-33.8,151.2\nB,-33.7,151.1\n");
        WizardOnSitePage flow;
        dropFiles(flow.page, {path});
        QTRY_VERIFY_WITH_TIMEOUT(flow.widget<QAbstractButton>(u"m_pwPbRejects"_s)->isEnabled(),
                                 PatienceMs);
        flow.widget<QTabWidget>(QString())->setCurrentIndex(0); // the columns
        flow.wizard.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&flow.wizard, PatienceMs));
        auto *first = flow.widget<QLineEdit>(u"m_pwLeSite"_s);
        const QStringList stops = {
            u"m_pwPbSite"_s,         u"m_pwPbCure"_s,       u"m_pwTbFold"_s,
            u"m_pwPbReport"_s,       u"m_pwPbRejects"_s,    u"qt_tabwidget_tabbar"_s,
            u"m_pwSbHeader"_s,       u"m_pwSbHeaderRows"_s, u"m_pwTrRoles"_s,
            u"m_pwTvExcerpt"_s,      u"m_pCBSrs"_s,         u"m_pCBSrs"_s,
            u"m_pwSbSectorHeight"_s, u"m_pwPbSymbolic"_s,   u"m_pwLeSite"_s};
        const auto walk = [&](Qt::Key key) {
            constexpr int Endless = 200;
            QStringList passed;
            first->setFocus();
            for (int i = 0;
                 i < Endless && (passed.isEmpty() || passed.constLast() != stops.constLast());
                 ++i) {
                QTest::keyClick(flow.wizard.focusWidget(), key);
                if (stops.contains(flow.wizard.focusWidget()->objectName()))
                    passed << flow.wizard.focusWidget()->objectName();
            }
            return passed;
        };

        QCOMPARE(walk(Qt::Key_Tab).join(u' '), stops.join(u' '));
        QStringList back = stops;
        std::reverse(back.begin(), back.end() - 1);
        QCOMPARE(walk(Qt::Key_Backtab).join(u' '), back.join(u' '));
    }
};

QTEST_MAIN(tst_SiteTableFlow)
#include "tst_SiteTableFlow.moc"
