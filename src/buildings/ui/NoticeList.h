#pragma once

#include <QStringList>

class QWidget;

namespace vlt::buildings {

/// Shows notices in a window of its own until the user closes it. They can be selected and copied.
void showNotices(QWidget *parent, const QStringList &notices);

} // namespace vlt::buildings
