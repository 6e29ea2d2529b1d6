#include "buildings/ui/RememberedPanel.h"

#include "wizard/base/ColorButton.h"
#include "wizard/base/WheelGuard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>

void RememberedPanel::remember(const QList<Remembered> &values)
{
    VltParameterPanel::remember(values);
    for (const Remembered &value : values)
        announceChanges(value.widget);
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
