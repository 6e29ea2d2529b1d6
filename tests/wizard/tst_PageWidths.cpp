#include "app/LoadMessages.h"
#include "support/Patience.h"
#include "tables/ui/VltTableDetails.h"
#include "wizard/LayerFlow.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace layerflow;

namespace {

QString nameOf(const QWidget &widget)
{
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                         : widget.objectName();
}

void unfold(const QWidget &page)
{
    for (auto *button : page.findChildren<QToolButton *>()) {
        if (button->isCheckable() && button->isEnabled())
            button->setChecked(true);
    }
}

/// Whether a one-line text is wider than its widget. A text that is elided on purpose has a tool
/// tip.
bool isCut(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const bool isLine = label && !label->wordWrap() && !label->text().isEmpty();
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const bool hasText = button && !button->text().isEmpty();
    return (isLine || hasText) && widget.width() < widget.minimumSizeHint().width();
}

/// What does not fit in the window; empty if everything does.
QStringList misfits(QWizard &wizard, const QSize &size)
{
    wizard.resize(size);
    unfold(*wizard.currentPage());
    QCoreApplication::processEvents();
    wizard.resize(size);
    QCoreApplication::processEvents();
    QStringList found;
    if (wizard.width() > size.width() || wizard.height() > size.height())
        found << u"window %1x%2"_s.arg(wizard.width()).arg(wizard.height());
    for (const QWidget *widget : wizard.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const auto *area = qobject_cast<const QScrollArea *>(widget);
        if (area && area->horizontalScrollBar()->isVisible())
            found << nameOf(*area) + u" scrolls sideways"_s;
        if (isCut(*widget))
            found << u"%1 cut: %2 of %3"_s.arg(nameOf(*widget))
                         .arg(widget->width())
                         .arg(widget->minimumSizeHint().width());
    }
    return found;
}

} // namespace

/// The pages of tables, and those of buildings up to their source, in the smallest windows that are
/// supported. The scale of the screen is that of the process.
class tst_PageWidths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(makeInstallation());
        vlt::app::loadMessages(installation(), {}, u"en"_s);
    }

    void pagesFit_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("table");
        for (const auto &language : {u"fr"_s, u"en"_s}) {
            for (const auto &[kind, table] : {std::pair(u"m_pwClAddSite"_s, u"sites.csv"_s),
                                              std::pair(u"m_pwClAddLink"_s, u"links.csv"_s),
                                              std::pair(u"m_pwClAddTexb"_s, QString())})
                QTest::addRow("%s %s", qPrintable(language), qPrintable(kind))
                    << language << kind << table;
        }
    }

    void pagesFit()
    {
        QFETCH(const QString, language);
        QFETCH(const QString, kind);
        QFETCH(const QString, table);
        const QSize size(qEnvironmentVariableIntValue("VLT_WIDTH"),
                         qEnvironmentVariableIntValue("VLT_HEIGHT"));
        QFont font = QApplication::font();
        font.setPointSize(qEnvironmentVariableIntValue("VLT_POINTS"));
        QApplication::setFont(font);
        forgetSettings();
        vlt::app::loadTexts(installation(), {}, language);

        VltTelecomLayersWizard wizard(installation(), language);
        wizard.show();
        QStringList found;
        const auto look = [&](const QString &page) {
            for (const QString &misfit : misfits(wizard, size))
                found << page + u": "_s + misfit;
        };
        look(u"start"_s);
        wizard.findChild<QAbstractButton *>(kind)->click();
        wizard.currentPage()
            ->findChild<QLineEdit *>(u"m_pwLeProjectName"_s)
            ->setText(SampleProject);
        look(u"project"_s);
        wizard.button(QWizard::NextButton)->click();
        look(u"empty"_s);
        if (!table.isEmpty()) {
            const QSignalSpy checks(wizard.currentPage()->findChild<VltTableDetails *>(),
                                    &VltTableDetails::checked);
            qobject_cast<BasePage *>(wizard.currentPage())->droppedFile(Samples + u'/' + table);
            QTRY_VERIFY_WITH_TIMEOUT(!checks.isEmpty(), PatienceMs);
            look(u"filled"_s);
        }
        QCOMPARE(found.join(u'\n'), QString());
    }
};

QTEST_MAIN(tst_PageWidths)
#include "tst_PageWidths.moc"
