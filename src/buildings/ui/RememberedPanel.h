#pragma once

#include "wizard/base/VltParameterPanel.h"

/// Base of the panels of building layers: each of their values is remembered, and its changes are
/// signalled.
class RememberedPanel : public VltParameterPanel
{
    Q_OBJECT

public:
    using VltParameterPanel::VltParameterPanel;

protected:
    /// Registers widgets like the base class, and emits parameterChanged() when the user changes
    /// them.
    void remember(const QList<Remembered> &values);

private:
    void announceChanges(QWidget *widget);
};
