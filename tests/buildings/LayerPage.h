#pragma once

#include "gui/AnsweredBoxes.h"
#include "gui/DropOnWidget.h"
#include "platform/Settings.h"
#include "support/Files.h"
#include "wizard/base/BasePage.h"
#include "wizard/base/DraggableIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

/// Helpers for the tests of the pages that make layers of buildings.
namespace layerpage {

using namespace Qt::StringLiterals;

inline const QByteArray Grid = "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n"
                               "NODATA_value -9999\n1 2\n3 4\n";

/// The values of a text "key=value key=value ...".
inline QVariantMap values(const QString &text)
{
    QVariantMap map;
    for (const QString &pair : text.split(u' '))
        map.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
    return map;
}

inline void remember(const QString &group, const QVariantMap &values)
{
    const auto settings = vlt::platform::wizardSettings();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings->setValue(group + u'/' + value.key(), value.value());
}

/// The settings of a group that differ from the expected ones, as "key=value".
inline QStringList otherThan(const QString &group, const QVariantMap &expected)
{
    const auto settings = vlt::platform::wizardSettings();
    settings->beginGroup(group);
    QStringList others;
    for (auto value = expected.cbegin(); value != expected.cend(); ++value) {
        const QString stored = settings->value(value.key()).toString();
        if (stored != value.value().toString())
            others << value.key() + u'=' + stored;
    }
    return others;
}

/// All attributes of a document in their order, as "name=value name=value ...".
inline QString attributes(const QString &document)
{
    QStringList attributes;
    for (const auto &match : QRegularExpression(u"\\w+=\"[^\"]*\""_s).globalMatch(document))
        attributes << match.captured().remove(u'"');
    return attributes.join(u' ');
}

/// A page as it is after the previous page.
template<typename Base>
class Page : public Base
{
public:
    Page(const QString &installation, const SharedParameters &published)
        : Base(nullptr, shared, installation, u"en"_s)
    {
        shared = published;
        Base::initializePage();
        Base::resize(1000, 600);
        Base::show();
        Base::activateWindow();
    }

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return Base::template findChild<Widget *>(name);
    }
    QComboBox *combo(const QString &name) { return child<QComboBox>(name); }
    QLineEdit *line(const QString &name) { return child<QLineEdit>(name); }
    void choose(const QString &name, int index) { combo(name)->setCurrentIndex(index); }
    void check(const QString &name, bool on) { child<QCheckBox>(name)->setChecked(on); }
    void press(const QString &name) { child<QPushButton>(name)->click(); }
    QString text(const QString &label) { return child<QLabel>(label)->text(); }
    QString message() { return text(u"m_pwLblScene"_s); }
    DraggableIcon *icon() { return child<DraggableIcon>(u"m_pwDragIcon"_s); }
    QString layer() { return QString::fromUtf8(readFile(icon()->layerFile())); }
    QString document()
    {
        const QString layer = icon()->layerFile();
        return QString::fromUtf8(readFile(QString(layer).replace(u".lay"_s, u".texb"_s)));
    }

    SharedParameters shared;
};

} // namespace layerpage
