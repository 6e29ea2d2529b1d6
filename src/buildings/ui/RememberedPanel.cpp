#include "buildings/ui/RememberedPanel.h"

#include "platform/Settings.h"
#include "wizard/base/ColorButton.h"
#include "wizard/base/WheelGuard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace {

QVariant valueOf(const QWidget *widget)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentIndex();
    if (const auto *check = qobject_cast<const QCheckBox *>(widget))
        return check->isChecked();
    if (const auto *whole = qobject_cast<const QSpinBox *>(widget))
        return whole->value();
    if (const auto *decimal = qobject_cast<const QDoubleSpinBox *>(widget))
        return decimal->value();
    if (const auto *color = qobject_cast<const ColorButton *>(widget))
        return color->color().name();
    return {};
}

void setNumber(QWidget *widget, const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        return;
    if (auto *decimal = qobject_cast<QDoubleSpinBox *>(widget))
        decimal->setValue(number);
    else if (auto *whole = qobject_cast<QSpinBox *>(widget))
        whole->setValue(qRound(qBound<double>(whole->minimum(), number, whole->maximum())));
    else if (auto *combo = qobject_cast<QComboBox *>(widget);
             number >= 0 && number < combo->count())
        combo->setCurrentIndex(static_cast<int>(number));
}

void setValue(QWidget *widget, const QVariant &value)
{
    if (!value.isValid())
        return;
    if (auto *check = qobject_cast<QCheckBox *>(widget)) {
        check->setChecked(value.toBool());
    } else if (auto *button = qobject_cast<ColorButton *>(widget)) {
        const QColor color(value.toString());
        if (color.isValid())
            button->setColor(color);
    } else {
        setNumber(widget, value);
    }
}

} // namespace

void RememberedPanel::remember(const QList<Remembered> &widgets)
{
    m_remembered = widgets;
    for (const Remembered &remembered : widgets)
        announceChanges(remembered.widget);
    vlt::wizard::guardAgainstStrayWheel(this);
}

void RememberedPanel::announceChanges(QWidget *widget)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        connect(combo, &QComboBox::currentIndexChanged, this, &RememberedPanel::parameterChanged);
    else if (auto *check = qobject_cast<QCheckBox *>(widget))
        connect(check, &QCheckBox::toggled, this, &RememberedPanel::parameterChanged);
    else if (auto *whole = qobject_cast<QSpinBox *>(widget))
        connect(whole, &QSpinBox::valueChanged, this, &RememberedPanel::parameterChanged);
    else if (auto *decimal = qobject_cast<QDoubleSpinBox *>(widget))
        connect(decimal, &QDoubleSpinBox::valueChanged, this, &RememberedPanel::parameterChanged);
    else if (auto *color = qobject_cast<ColorButton *>(widget))
        connect(color, &ColorButton::colorChanged, this, &RememberedPanel::parameterChanged);
}

void RememberedPanel::loadSettings(const QString &prefix)
{
    const QSignalBlocker quiet(this);
    const auto settings = vlt::platform::wizardSettings();
    for (const Remembered &remembered : std::as_const(m_remembered))
        setValue(remembered.widget, settings->value(prefix + QLatin1Char('/') + remembered.key));
}

void RememberedPanel::saveSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    for (const Remembered &remembered : std::as_const(m_remembered))
        settings->setValue(prefix + QLatin1Char('/') + remembered.key, valueOf(remembered.widget));
}
