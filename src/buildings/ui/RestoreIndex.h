#pragma once

#include <QComboBox>
#include <QVariant>

namespace vlt::buildings {

/// Chooses the entry that settings name by its index, unless there is no such entry.
inline void restoreIndex(QComboBox *combo, const QVariant &value)
{
    bool isNumber = false;
    const int index = value.toInt(&isNumber);
    if (isNumber && index >= 0 && index < combo->count())
        combo->setCurrentIndex(index);
}

} // namespace vlt::buildings
