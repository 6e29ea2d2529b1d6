#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "gui/FileDialogAnswer.h"
#include "links/ui/LinkReportModel.h"
#include "preview/VltObjectPointing.h"
#include "preview/W_simpleOSGViewer.h"
#include "support/Cases.h"
#include "support/Files.h"
#include "support/Patience.h"
#include "tables/RoleModel.h"
#include "wizard/LayerFlow.h"
#include "wizard/base/TemporaryLayerFile.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace layerflow;
using Column = vlt::links::LinkReportModel::Column;

namespace {

const QString Links = Samples + u"/links.csv"_s;

class WizardOnLinkPage : public WizardOnPage
{
public:
    explicit WizardOnLinkPage(const QString &project = SampleProject)
        : WizardOnPage(u"m_pwClAddLink"_s, installation(), project)
    {}

    QLabel *remarkLabel() { return widget<QLabel>(u"m_pwLblRemark"_s); }
    QString remark()
    {
        return QTextDocumentFragment::fromHtml(remarkLabel()->text()).toPlainText().simplified();
    }
    QTableView *table() { return widget<QTableView>(u"m_pwTvLinks"_s); }
};

} // namespace

class tst_LinkLayerFlow : public QObject
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

    void makesTheLayerOfTheCommandLine_data()
    {
        // widget: the widget is set to `value`, like the option
        const Cases<QString, QString, double, QStringList> row(
            {"table", "widget", "value", "options"});
        row("numbered ends", "links.csv", {}, 0, {});
        row("k factor", "links.csv", "m_pwSbKFactor", 0.75, {u"--k-factor"_s, u"0.75"_s});
        row("ends side by side, wide links", "links_miles.xlsx", "m_pwSbLinkWidth", 7.5,
            {u"--link-width"_s, u"7.5"_s});
        row("look of the pylons", "links.csv", "m_pwSbPylonWidth", 4, {u"--pylon-width"_s, u"4"_s});
    }

    void makesTheLayerOfTheCommandLine()
    {
        QFETCH(QString, table);
        QFETCH(QString, widget);
        QFETCH(double, value);
        QFETCH(QStringList, options);
        const QString path = Samples + u'/' + table;
        WizardOnLinkPage flow;
        QCOMPARE(flow.description(),
                 u"No links file defined.\nSelect the links file to display."_s);
        FileDialogAnswer dialog(path);

        flow.widget<QAbstractButton>(u"m_pwPbLink"_s)->click();
        if (!widget.isEmpty())
            flow.widget<QWidget>(widget)->setProperty("value", value);

        QCOMPARE(dialog.caption, u"Select the link file to use"_s);
        QCOMPARE(dialog.filters, QStringList{u"Link files (*.xls *.xlsx *.xml *.csv)"_s});
        QCOMPARE(flow.icon->layerFile(), vlt::wizard::temporaryLayerFileName(u"links"_s));
        const QByteArray layer = readFile(flow.icon->layerFile());
        QCOMPARE(layer, layerOfCommandLine(u"link"_s, path, options));

        WizardOnLinkPage nextTime;
        QCOMPARE(readFile(nextTime.icon->layerFile()), layer);
    }

    void checksTheLinksAgainAfterAChange()
    {
        WizardOnLinkPage flow;
        dropFiles(flow.page, {Links});
        QTRY_COMPARE_WITH_TIMEOUT(flow.remark(),
                                  u"\u25cf 18 clear, \u25cf 2 marginal, \u25cf 1 obstructed"_s,
                                  PatienceMs);
        QTableView *table = flow.table();
        const auto cell = [table](int row, int column) {
            return table->model()->index(row, column).data().toString();
        };

        QCOMPARE(cell(0, Column::Name), u"MW-21"_s); // the worst first
        QVERIFY(!table->isVisible());
        Q_EMIT flow.remarkLabel()->linkActivated(u"2"_s); // marginal
        QVERIFY(table->isVisible());
        QCOMPARE(table->currentIndex().row(), 1);
        table->selectRow(2); // MW-20
        QCOMPARE(cell(0, Column::ClearanceStatus), u"obstructed"_s);
        QVERIFY(cell(0, Column::Worst).contains(u"above the line"_s));
        table->sortByColumn(Column::Length, Qt::DescendingOrder); // the longest first
        QCOMPARE(cell(0, Column::Name), u"MW-19"_s);
        flow.wizard.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&flow.wizard, PatienceMs));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
        QCOMPARE(lines.size(), 3); // headers, the row, the line feed after it
        QVERIFY(lines[1].startsWith(u"21\tMW-20\tmarginal\t"_s));

        for (const int percent : {5, 4, 3, 2, 1}) // only the last one is used
            flow.widget<QSpinBox>(u"m_pwSbFresnelShare"_s)->setValue(percent);
        QTRY_COMPARE_WITH_TIMEOUT(
            flow.remark(), u"\u25cf 20 clear, 0 marginal, \u25cf 1 obstructed"_s, PatienceMs);
        QCOMPARE(cell(0, Column::Name), u"MW-19"_s);
        const QModelIndexList selected = table->selectionModel()->selectedRows(Column::Name);
        QCOMPARE(selected.value(0).data(), u"MW-20"_s);
    }

    void showsTheProfileOfTheSelectedLink()
    {
        WizardOnLinkPage flow;
        auto *drawing = flow.widget<QWidget>(u"m_pwLinkProfile"_s);
        const auto *label = flow.widget<QLabel>(u"m_pwLblProfile"_s);
        const auto shows = [label](const QString &text) {
            return QTextDocumentFragment::fromHtml(label->text()).toPlainText().contains(text);
        };
        dropFiles(flow.page, {Links});
        QTableView *table = flow.table();
        QTRY_COMPARE_WITH_TIMEOUT(table->model()->rowCount(), 21, PatienceMs);
        QVERIFY(!drawing->isVisible());

        for (const int row : {4, 3, 2, 1, 0}) // the last one counts
            table->selectRow(row);
        QTRY_VERIFY_WITH_TIMEOUT(drawing->isVisible(), PatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(shows(u"MW-21"_s) && shows(u"obstructed"_s), PatienceMs);
        QVERIFY(drawing->accessibleName().contains(u"MW-21"_s));
        const QImage alone = drawing->grab().toImage();

        QTest::keyClick(drawing, Qt::Key_Right); // the worst point
        QVERIFY(drawing->accessibleDescription().startsWith(u"4.62 km from A"_s));
        QTest::keyClick(drawing, Qt::Key_End);
        QVERIFY(drawing->accessibleDescription().startsWith(u"10.73 km from A"_s));
        QVERIFY(drawing->grab().toImage() != alone);

        const QString saved = m_dir.filePath(u"profile.svg"_s);
        const FileDialogAnswer dialog(saved);
        drawing->actions().constLast()->trigger();
        QVERIFY(readFile(saved).contains("<svg"));
        drawing->actions().constFirst()->trigger();
        QVERIFY(!QGuiApplication::clipboard()->image().isNull());

        table->selectRow(1); // marginal by the rule
        QTRY_VERIFY_WITH_TIMEOUT(shows(u"marginal"_s), PatienceMs);
        flow.widget<QSpinBox>(u"m_pwSbFresnelShare"_s)->setValue(1);
        QTRY_VERIFY_WITH_TIMEOUT(shows(u"clear"_s), PatienceMs);
        table->clearSelection();
        QVERIFY(!drawing->isVisible());
    }

    void showsLongTextsWithoutHidingTheStatus()
    {
        const QString path =
            writeFile(m_dir.filePath(u"long.csv"_s),
                      "Name;Longitude 1;Latitude 1;Longitude 2;Latitude 2;Frequency Band (GHz)\n" +
                          QByteArray("L;-3.4;47.7;-3.3;47.7;6.0292\n").repeated(1999) +
                          QByteArray(200, 'M') + ";-3.4;47.7;33;7.7;6.0292\n"); // thousands of km
        WizardOnLinkPage flow;

        dropFiles(flow.page, {path});

        QTableView *table = flow.table();
        QTRY_COMPARE_WITH_TIMEOUT(table->model()->rowCount(), 2000, PatienceMs);
        QCOMPARE(table->model()->index(0, Column::Frequency).data(), u"6,029.2"_s);
        const QModelIndex farthest = table->model()->index(1999, Column::Length);
        QVERIFY(table->columnWidth(Column::Length) >= table->sizeHintForIndex(farthest).width());
        QVERIFY(table->columnViewportPosition(Column::EndA) < 600);
    }

    void tabGoesThroughThePageAsItLies()
    {
        WizardOnLinkPage flow;
        dropFiles(flow.page, {Links});
        const QStringList stops = {
            u"m_pwLeLink"_s,    u"m_pwTbFold"_s,         u"m_pCBSrs"_s,       u"m_pwCbLinkStyle"_s,
            u"m_pwSbKFactor"_s, u"m_pwSbSectorHeight"_s, u"m_pwPbSymbolic"_s, u"m_pwDragIcon"_s};

        QStringList passed;
        const QWidget *first = flow.widget<QWidget>(stops.constFirst());
        const QWidget *widget = first;
        do {
            if (stops.contains(widget->objectName()) && !passed.contains(widget->objectName()))
                passed << widget->objectName();
            widget = widget->nextInFocusChain();
        } while (widget != first);

        QCOMPARE(passed, stops);
    }

    void takesTheEndsThatTheUserStates_data()
    {
        // stated: role=column ...; reason: for the table as it is
        const Cases<QByteArray, QStringList, QString> row({"table", "stated", "reason"});
        const QStringList all = {u"X coordinate, end A=P"_s, u"Y coordinate, end A=Q"_s,
                                 u"X coordinate, end B=R"_s, u"Y coordinate, end B=S"_s};
        row("strange names", "N;P;Q;R;S\nL;-3.4;47.7;-3.3;47.8\nM;-3.4;47.7;-3.2;47.8\n", all,
            "no columns with coordinates of both ends were recognized");
        row("one end", "N;Near lon;Near lat;R;S\nL;-3.4;47.7;-3.3;47.8\nM;-3.4;47.7;-3.2;47.8\n",
            all.mid(2), "those of end B are missing");
        row("no header", "-3.4;47.7;-3.3;47.8\n-3.4;47.7;-3.2;47.8\n",
            QStringList(all)
                .replaceInStrings(u"P"_s, u"Column 1"_s)
                .replaceInStrings(u"Q"_s, u"Column 2"_s)
                .replaceInStrings(u"R"_s, u"Column 3"_s)
                .replaceInStrings(u"S"_s, u"Column 4"_s),
            "no header was found");
    }

    void takesTheEndsThatTheUserStates()
    {
        QFETCH(QByteArray, table);
        QFETCH(QStringList, stated);
        QFETCH(QString, reason);
        const QString path = writeFile(
            m_dir.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".csv"_s), table);
        const AnsweredBoxes boxes;
        WizardOnLinkPage flow;

        dropFiles(flow.page, {path});

        const auto *why = flow.widget<QLabel>(u"m_pwLblReason"_s);
        QVERIFY2(why->text().contains(reason), qPrintable(why->text()));
        auto *roles = flow.widget<QTreeView>(u"m_pwTrRoles"_s);
        QVERIFY(roles->isVisible());
        auto *model = qobject_cast<vlt::tables::RoleModel *>(roles->model());
        for (const QString &statement : std::as_const(stated)) {
            QVERIFY(!flow.icon->isEnabled());
            const QString column = statement.section(u'=', 1);
            const auto chosen = [&] {
                return model
                    ->match(model->index(0, 0), Qt::DisplayRole, statement.section(u'=', 0, 0))
                    .value(0)
                    .siblingAtColumn(vlt::tables::RoleModel::Name);
            };
            QVERIFY(
                model->setData(chosen(), model->choices(chosen()).indexOf(column), Qt::EditRole));
            QTRY_COMPARE_WITH_TIMEOUT(chosen().data(), column, PatienceMs);
        }

        QTRY_VERIFY_WITH_TIMEOUT(flow.icon->isEnabled(), PatienceMs);
        QVERIFY(!why->isVisible());
        QCOMPARE(flow.widget<QLineEdit>(u"m_pwLeLink"_s)->text(), path);
        QTRY_VERIFY_WITH_TIMEOUT(
            flow.widget<QToolButton>(u"m_pwTbFold"_s)->text().contains(u"links placed: 2 of 2"_s),
            PatienceMs);
        QCOMPARE(readFile(flow.icon->layerFile()), layerOfCommandLine(u"link"_s, path, {}));
    }

    void saysWhyNothingIsChecked()
    {
        WizardOnLinkPage flow(writeFile(m_dir.filePath(u"flat.gvw"_s)));

        dropFiles(flow.page, {Links});

        QTRY_COMPARE_WITH_TIMEOUT(
            flow.remark(), u"The clearance of the links is not known: the project has no terrain"_s,
            PatienceMs);
        QCOMPARE(flow.table()->model()->index(0, Column::ClearanceStatus).data(), u"unknown"_s);
    }

    void showsTheDemonstrationOrTheLinksOfTheLayer()
    {
        WizardOnLinkPage flow;
        auto *viewer = flow.widget<W_simpleOSGViewer>(u"m_pwViewer"_s);
        const CameraPose first = viewer->pose();
        dropFiles(flow.page, {Links});
        QTRY_VERIFY_WITH_TIMEOUT(viewer->getSceneData()->getBound().radius() > 10000,
                                 PatienceMs); // the links of a region

        flow.widget<QAbstractButton>(u"m_pwPbSymbolic"_s)->click();
        const osg::Node *demonstration = viewer->getSceneData();
        QVERIFY(demonstration->getBound().radius() < 1000);
        const CameraPose pose = viewer->pose();
        QVERIFY((pose.eye - first.eye).length() < 1);
        const osg::BoundingSphere whole = demonstration->getBound();
        const osg::Vec3d toMiddle = osg::Vec3d(whole.center()) - pose.eye;
        const osg::Vec3d along = (pose.center - pose.eye) / pose.distanceM();
        QVERIFY((toMiddle ^ along).length() < 50);       // distance from the line of view
        QVERIFY(toMiddle.length() > 3 * whole.radius()); // all three pylons are visible
    }

    void selectsLinksInTheListAndInTheView()
    {
        WizardOnLinkPage flow;
        dropFiles(flow.page, {Links});
        auto *pointing = flow.widget<VltObjectPointing>({});
        QVERIFY(pointing);
        QTRY_VERIFY_WITH_TIMEOUT(pointing->objects(), PatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(flow.table()->model()->rowCount() == 21, PatienceMs);
        Q_EMIT flow.remarkLabel()->linkActivated(u"3"_s); // the obstructed one: MW-21
        const auto *card = flow.widget<QTextBrowser>(u"m_pwTbObjectPage"_s);
        QTRY_VERIFY_WITH_TIMEOUT(card->toPlainText().contains(u"MW-21"_s), PatienceMs);
        QVERIFY(pointing->selected());
        QCOMPARE(pointing->objects()->name(*pointing->selected()), u"MW-21"_s);

        flow.table()->setFocus();
        QTest::keyClick(flow.table(), Qt::Key_Return); // flies there
        const osg::Vec3d middle = pointing->objects()->extent(*pointing->selected()).center();
        const auto *viewer = flow.widget<W_simpleOSGViewer>(u"m_pwViewer"_s);
        QTRY_VERIFY_WITH_TIMEOUT((viewer->pose().center - middle).length() < 1, PatienceMs);

        Q_EMIT pointing->picked(0); // as a click on the first link does
        const QModelIndex current = flow.table()->selectionModel()->selectedRows().value(0);
        QCOMPARE(current.siblingAtColumn(Column::Name).data(), u"MW-01"_s);
    }
};

QTEST_MAIN(tst_LinkLayerFlow)
#include "tst_LinkLayerFlow.moc"
