#pragma once

#include <QWidget>

/// A panel of values by which a layer is drawn.
class VltParameterPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Reads the values remembered under "<prefix>/..."; the first-run value stands for one that is
    /// missing or damaged. Emits nothing.
    virtual void loadSettings(const QString &prefix) = 0;
    virtual void saveSettings(const QString &prefix) = 0;

    /// Puts the groups above each other instead of side by side, for large fonts.
    virtual void setStacked(bool /*stacked*/) {}

Q_SIGNALS:
    /// A value has changed.
    void parameterChanged();
};
