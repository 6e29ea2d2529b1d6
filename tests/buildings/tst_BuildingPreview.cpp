#include "buildings/ui/VltBuildingPreview.h"
#include "support/Files.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Document =
    "<veltaroTexturedBuildings cache='none'><vector filename='town.geojson' "
    "layer='' hfield='H' wallColor='#808080'/><elevation source='dtm' "
    "filename='' nodata=''/></veltaroTexturedBuildings>";

/// A building with this height, with single quotation marks.
QByteArray buildingOf(const char *height)
{
    return QByteArray("{'type':'Feature','properties':{'H':") + height +
           "},'geometry':{'type':'Polygon','coordinates':[[[5,45],[5.001,45],[5,45.001],[5,45]]]}}";
}

} // namespace

class tst_BuildingPreview : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    /// Path of a document of a town without a terrain.
    QString document(const QByteArrayList &buildings)
    {
        const QByteArray town =
            "{'type':'FeatureCollection','features':[" + buildings.join(',') + "]}";
        writeFile(m_dir.filePath(u"town.geojson"_s), QByteArray(town).replace('\'', '"'));
        return writeFile(m_dir.filePath(u"town.texb"_s), Document);
    }

private Q_SLOTS:
    void listsAllNotices()
    {
        VltBuildingPreview preview;
        preview.show();
        const auto *label = preview.findChild<QLabel *>(u"m_pwLblScene"_s);
        auto *button = preview.findChild<QPushButton *>(u"m_pwPbNotices"_s);
        const QString first = u"1 of 3 buildings are left out: no height in the field \"H\""_s;
        const QString last = u"The document names no terrain; the buildings stand at height 0"_s;
        const auto show = [&](const QByteArrayList &buildings) {
            preview.showLayer(document(buildings), {});
        };

        show({buildingOf("5")});
        QCOMPARE(label->text(), u"Buildings: 1, at height 0: 1\n"_s + last);
        QVERIFY(!button->isVisible());
        show({buildingOf("5"), buildingOf("null"), buildingOf("0")});
        QCOMPARE(label->text(), u"Buildings: 1, left out: 2, at height 0: 1\n"_s + first);
        QCOMPARE(button->text(), u"3 notices..."_s);
        QString listed;
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            listed = dialog->findChild<QPlainTextEdit *>()->toPlainText();
            for (QPushButton *one : dialog->findChildren<QPushButton *>()) {
                if (one->text() == u"&Copy all"_s)
                    one->click();
            }
            dialog->reject();
        });
        button->click();

        const QStringList lines = listed.split(u'\n');
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.first(), first);
        QCOMPARE(lines.last(), last);
        QCOMPARE(QGuiApplication::clipboard()->text(), listed);
        preview.showMessage(u"stale"_s);
        QVERIFY(!button->isVisible());
    }
};

QTEST_MAIN(tst_BuildingPreview)
#include "tst_BuildingPreview.moc"
