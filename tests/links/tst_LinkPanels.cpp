#include "links/ui/VltLinkProperties.h"
#include "platform/Settings.h"
#include "support/Cases.h"
#include "wizard/base/ColorButton.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace vlt::links;

class tst_LinkPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { vlt::platform::wizardSettings()->clear(); }

    void remembersEveryValueUnderItsKey_data()
    {
        // query: the part of the query of links with the value
        const Cases<QVariant, QString, QVariant> row({"stored", "query", "damaged"});
        row("LinkStyle", u"BILLBOARD"_s, "link_style=BILLBOARD,", u"ROPE"_s);
        row("LinkWidth", 0.5, "link_width=0.5,", u"nan"_s);
        row("LinkColor", u"#80102030"_s, "link_color=10203080,", u"#12345"_s);
        row("ColorByClearance", true, "e0218aff clearance,", u"maybe"_s);
        row("ShowFresnel", false, "fresnel_zone=0,", 7);
        row("FresnelZone", 10, "fresnel_zone=10,", 0);
        row("FresnelShare", 100, "fresnel_share=100,", 101);
        row("FresnelColor", u"#ff00ff01"_s, "fresnel_color=00ff01", QByteArray("\0", 1));
        row("FresnelTransparency", 0, "fresnel_color=ffa500ff,", -1);
        row("KFactor", 0.66667, "k_factor=0.66667", 0);
    }

    void remembersEveryValueUnderItsKey()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, query);
        QFETCH(QVariant, damaged);
        const QString key = u"P/"_s + QString::fromLatin1(QTest::currentDataTag());
        const auto settings = vlt::platform::wizardSettings();
        VltLinkProperties panel;
        const QSignalSpy changes(&panel, &VltLinkProperties::parameterChanged);

        panel.loadSettings(u"P"_s);
        QCOMPARE(panel.representation(), LinkRepresentation());
        settings->setValue(key, stored);
        panel.loadSettings(u"P"_s);
        QVERIFY2(linkQueryPart(panel.representation()).contains(query),
                 qPrintable(linkQueryPart(panel.representation())));
        QCOMPARE(changes.count(), 0);
        panel.saveSettings(u"Q"_s);
        VltLinkProperties other;
        other.loadSettings(u"Q"_s);
        QCOMPARE(other.representation(), panel.representation());

        settings->setValue(key, damaged);
        panel.loadSettings(u"P"_s);
        QCOMPARE(panel.representation(), LinkRepresentation());
    }

    void announcesEveryChangeOnce()
    {
        VltLinkProperties panel;
        panel.show();
        QSignalSpy changes(&panel, &VltLinkProperties::parameterChanged);
        const auto *width = panel.findChild<QDoubleSpinBox *>(u"m_pwSbLinkWidth"_s);
        QCOMPARE(width->suffix(), u" px"_s);

        QTest::keyClick(panel.findChild<QComboBox *>(u"m_pwCbLinkStyle"_s), Qt::Key_Down);
        panel.findChild<QSpinBox *>(u"m_pwSbFresnelZone"_s)->stepUp();
        panel.findChild<QDoubleSpinBox *>(u"m_pwSbKFactor"_s)->stepUp();
        panel.findChild<QSlider *>(u"m_pwSlFresnelTransparency"_s)->setValue(10);
        panel.findChild<QCheckBox *>(u"m_pwChbColorByClearance"_s)->click();
        panel.findChild<QGroupBox *>(u"m_pwGbFresnel"_s)->setChecked(false);

        QCOMPARE(changes.count(), 6);
        QCOMPARE(width->suffix(), u" m"_s);
        QVERIFY(panel.findChild<QWidget *>(u"m_pwSbFresnelShare"_s)->isEnabled()); // still used
        QVERIFY(!panel.findChild<QWidget *>(u"m_pwSbFresnelZone"_s)->isEnabled());
    }

    void asksForAColourByKeyboard_data()
    {
        // chosen: invalid if cancelled
        const Cases<QColor, QString> row({"chosen", "reported"});
        row("taken", QColor(1, 2, 3), "#010203");
        row("translucent", QColor(255, 0, 0, 127), "#FF0000, 50 % transparent");
        row("cancelled", QColor(), "#E0218A");
    }

    void asksForAColourByKeyboard()
    {
        QFETCH(QColor, chosen);
        QFETCH(QString, reported);
        VltLinkProperties panel;
        panel.show();
        auto *button = panel.findChild<ColorButton *>(u"m_pwPbLinkColor"_s);
        QSignalSpy changes(&panel, &VltLinkProperties::parameterChanged);
        QTimer::singleShot(50, this, [chosen] {
            auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            dialog->setCurrentColor(chosen);
            chosen.isValid() ? dialog->accept() : dialog->reject();
        });

        QTest::keyClick(button, Qt::Key_Space);

        QCOMPARE(changes.count(), chosen.isValid() ? 1 : 0);
        QCOMPARE(panel.representation().color,
                 chosen.isValid() ? chosen : LinkRepresentation().color);
        QCOMPARE(button->accessibleName(), u"Color of the links: "_s + reported);
    }
};

QTEST_MAIN(tst_LinkPanels)
#include "tst_LinkPanels.moc"
