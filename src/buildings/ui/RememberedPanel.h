#pragma once

#include "wizard/base/VltParameterPanel.h"

/// Base of the panels of building layers: each of their values is remembered and announced.
class RememberedPanel : public VltParameterPanel
{
    Q_OBJECT

public:
    using VltParameterPanel::VltParameterPanel;

protected:
    /// Takes widgets as the base does, and emits parameterChanged() when the user changes them.
    void remember(const QList<Remembered> &values);

private:
    void announceChanges(QWidget *widget);
};
