#pragma once

#include "contract/ChosenNumber.h"

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

/// Chooses an entry, or the first one where there is no such entry.
void selectEntry(QComboBox *combo, int index);

/// Gives a spin box or slider the range of a number and its first-run value.
template<typename Box, typename Number>
void offer(Box *box, const contract::ChosenNumber<Number> &number)
{
    box->setRange(number.minimum, number.maximum);
    box->setValue(number.firstRun);
}

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
