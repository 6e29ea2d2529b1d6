#pragma once

#include "wizard/base/VltParameterPanel.h"

#include <QList>
#include <QString>

/// Base of panels whose values are kept in the settings: combos by their index, check boxes, spin
/// boxes and colour buttons.
class RememberedPanel : public VltParameterPanel
{
    Q_OBJECT

public:
    using VltParameterPanel::VltParameterPanel;

    /// A widget keeps its value where none is remembered, or none that it can take.
    void loadSettings(const QString &prefix) override;
    void saveSettings(const QString &prefix) override;

protected:
    struct Remembered
    {
        QString key;
        QWidget *widget = nullptr;
    };

    /// Takes the widgets, all of those whose values the panel has. Called once.
    void remember(const QList<Remembered> &widgets);

private:
    void announceChanges(QWidget *widget);

    QList<Remembered> m_remembered;
};
