#pragma once

#include <QComboBox>
#include <QSpinBox>
#include <QWidget>

namespace vlt::tables {

/// Makes the spin boxes of a panel as wide as common values need. Boxes as wide as the largest
/// number of their range would not fit beside each other.
void narrowSpinBoxes(QWidget *panel);

/// Makes the list of a combo box wide enough for its longest text and shows the chosen text as tool
/// tip: texts may be longer than the closed box.
void showWholeTexts(QComboBox *combo);

/// Connects every spin box and combo of a panel to its signal parameterChanged().
template<typename Panel>
void announceChanges(Panel *panel)
{
    for (auto *box : panel->template findChildren<QDoubleSpinBox *>())
        QObject::connect(box, &QDoubleSpinBox::valueChanged, panel, &Panel::parameterChanged);
    for (auto *box : panel->template findChildren<QSpinBox *>())
        QObject::connect(box, &QSpinBox::valueChanged, panel, &Panel::parameterChanged);
    for (auto *combo : panel->template findChildren<QComboBox *>())
        QObject::connect(combo, &QComboBox::activated, panel, &Panel::parameterChanged);
}

} // namespace vlt::tables
