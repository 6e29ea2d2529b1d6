#include "wizard/base/VltParameterPanel.h"

#include "platform/Settings.h"
#include "wizard/base/ColorButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QSettings>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

#include <cmath>
#include <optional>
#include <type_traits>
#include <utility>

namespace {

QVariant valueOf(const QWidget *widget, QColor::NameFormat colorFormat)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentData().isValid() ? combo->currentData() : combo->currentIndex();
    if (const auto *button = qobject_cast<const ColorButton *>(widget))
        return button->color().name(colorFormat);
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->text();
    if (qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QGroupBox *>(widget))
        return widget->property("checked");
    return widget->property("value");
}

/// The remembered number, if it lies in the range and, for `isWhole`, is an integer.
std::optional<double> numberOf(const QVariant &value, double minimum, double maximum, bool isWhole)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || !(number >= minimum && number <= maximum) ||
        (isWhole && number != std::floor(number)))
        return std::nullopt;
    return number;
}

template<typename Box>
bool setNumber(Box *box, const QVariant &value)
{
    using Number = decltype(box->value());
    const auto number = numberOf(value, box->minimum(), box->maximum(), std::is_integral_v<Number>);
    if (number)
        box->setValue(static_cast<Number>(*number));
    return number.has_value();
}

bool setEntry(QComboBox *combo, const QVariant &value)
{
    const int index =
        combo->itemData(0).isValid()
            ? combo->findData(value.toString())
            : static_cast<int>(numberOf(value, 0, combo->count() - 1, true).value_or(-1));
    if (index >= 0)
        combo->setCurrentIndex(index);
    return index >= 0;
}

template<typename Button>
bool setChecked(Button *button, const QVariant &value)
{
    for (const bool checked : {false, true}) {
        if (value.toString() == QVariant(checked).toString()) {
            button->setChecked(checked);
            return true;
        }
    }
    return false;
}

bool setColor(ColorButton *button, const QVariant &value)
{
    const QColor color(value.toString());
    if (color.isValid())
        button->setColor(color);
    return color.isValid();
}

bool setText(QLineEdit *line, const QVariant &value)
{
    line->setText(value.toString());
    return value.isValid();
}

/// Sets the value of a widget; false, without a change, for a value that the widget cannot have.
bool setValue(QWidget *widget, const QVariant &value)
{
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        return setEntry(combo, value);
    if (auto *button = qobject_cast<ColorButton *>(widget))
        return setColor(button, value);
    if (auto *line = qobject_cast<QLineEdit *>(widget))
        return setText(line, value);
    if (auto *check = qobject_cast<QCheckBox *>(widget))
        return setChecked(check, value);
    if (auto *group = qobject_cast<QGroupBox *>(widget))
        return setChecked(group, value);
    if (auto *decimals = qobject_cast<QDoubleSpinBox *>(widget))
        return setNumber(decimals, value);
    if (auto *whole = qobject_cast<QSpinBox *>(widget))
        return setNumber(whole, value);
    auto *slider = qobject_cast<QSlider *>(widget);
    return slider && setNumber(slider, value);
}

} // namespace

void VltParameterPanel::remember(const QList<Remembered> &values)
{
    for (const Remembered &value : values)
        m_values.append({value, valueOf(value.widget, value.colorFormat)});
}

void VltParameterPanel::forget(const QWidget *widget)
{
    m_values.removeIf(
        [widget](const FirstRun &value) { return value.remembered.widget == widget; });
}

void VltParameterPanel::loadSettings(const QString &prefix)
{
    const QSignalBlocker quiet(this);
    const auto settings = vlt::platform::wizardSettings();
    for (const FirstRun &firstRun : std::as_const(m_values)) {
        QWidget *widget = firstRun.remembered.widget;
        const QString key = prefix + QLatin1Char('/') + firstRun.remembered.key;
        if (!setValue(widget, settings->value(key)))
            setValue(widget, firstRun.value);
    }
}

void VltParameterPanel::saveSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    for (const FirstRun &firstRun : std::as_const(m_values)) {
        const Remembered &value = firstRun.remembered;
        settings->setValue(prefix + QLatin1Char('/') + value.key,
                           valueOf(value.widget, value.colorFormat));
    }
}
