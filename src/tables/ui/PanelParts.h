#pragma once

#include <QComboBox>
#include <QSpinBox>
#include <QWidget>

namespace vlt::tables {

/// Makes the spin boxes below a panel as wide as usual values need: boxes as wide as the largest
/// number of a range that reaches far beyond those would not fit beside each other.
void narrowSpinBoxes(QWidget *panel);

/// For texts that are longer than the closed box: its list is wide enough for them, and its tool
/// tip tells the chosen one.
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
