#pragma once

#include "buildings/ui/VltAddTexbFirstPage.h"
#include "gui/AnsweredBoxes.h"
#include "platform/Settings.h"
#include "support/Files.h"
#include "support/PrivateSettings.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWizard>

/// Helpers for the tests of the source page.
namespace sourcetest {

using namespace Qt::StringLiterals;

inline const QByteArray Square =
    R"("geometry":{"type":"Polygon","coordinates":[[[2,4],[6,4],[6,12],[2,4]]]})";
inline const QByteArray Point = R"("geometry":{"type":"Point","coordinates":[2,4]})";
inline const QByteArray Nowhere = R"("geometry":null)";
inline const QByteArray GridHead = "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n";

/// A GeoJSON text.
inline QByteArray features(const QList<QByteArray> &geometries,
                           const QByteArray &properties = "{\"H\":1.5}")
{
    QByteArrayList all;
    for (const QByteArray &geometry : geometries)
        all << R"({"type":"Feature","properties":)" + properties + "," + geometry + "}";
    return R"({"type":"FeatureCollection","features":[)" + all.join(',') + "]}";
}

/// A wizard with the page, id 1, between an empty page and the two that may follow.
struct Host
{
    explicit Host(const QString &project = {})
    {
        if (!project.isEmpty())
            parameters.insert(u"ProjectName"_s, project);
        wizard.addPage(new QWizardPage(&wizard));
        page = new VltAddTexbFirstPage(&wizard, parameters, u"/nowhere"_s, u"en"_s);
        wizard.addPage(page);
        page->setColoredPageId(wizard.addPage(new QWizardPage(&wizard)));
        page->setTexturedPageId(wizard.addPage(new QWizardPage(&wizard)));
        wizard.setOption(QWizard::NoDefaultButton);
        wizard.show();
        wizard.next();
    }

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return page->findChild<Widget *>(name);
    }
    QLineEdit *buildings() { return child<QLineEdit>(u"m_pwLeBuildings"_s); }
    QLineEdit *dtm() { return child<QLineEdit>(u"m_pwLeDtm"_s); }
    QLineEdit *noData() { return child<QLineEdit>(u"m_pwLeNoData"_s); }
    QComboBox *layer() { return child<QComboBox>(u"m_pwCbLayer"_s); }
    QComboBox *height() { return child<QComboBox>(u"m_pwCbHeight"_s); }
    QString info(const QString &of) { return child<QLabel>(u"m_pwLbl%1Info"_s.arg(of))->text(); }
    bool canGoOn() { return wizard.button(QWizard::NextButton)->isEnabled(); }

    SharedParameters parameters;
    QWizard wizard;
    VltAddTexbFirstPage *page = nullptr;
};

/// The files of a test and the settings of the page.
class SourceFiles
{
protected:
    QString file(const QString &name) const { return m_dir.filePath(name); }

    QString write(const QString &name, const QByteArray &contents) const
    {
        return writeFile(file(name), contents);
    }
    QString plain() const { return write(u"plain é.geojson"_s, features({Square})); }
    QString grid() const
    {
        return write(u"grid.asc"_s, GridHead + "NODATA_value -9999\n1 2\n3 4\n");
    }

    static QVariant remembered(const QString &key)
    {
        return vlt::platform::wizardSettings()->value(key);
    }
    static void remember(const QString &key, const QVariant &value)
    {
        vlt::platform::wizardSettings()->setValue(u"AddTexbFirstPage/"_s + key, value);
    }

private:
    PrivateSettings m_settings;
    QTemporaryDir m_dir;
};

} // namespace sourcetest
