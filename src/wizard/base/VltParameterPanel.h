#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QVariant>
#include <QWidget>

/// A panel of values for the representation of a layer.
class VltParameterPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Reads the values remembered under "<prefix>/..."; a missing or damaged value becomes the
    /// first-run value. Emits nothing.
    virtual void loadSettings(const QString &prefix);
    virtual void saveSettings(const QString &prefix);

    /// Puts the groups above each other instead of side by side, for large fonts.
    virtual void setStacked(bool /*stacked*/) {}

Q_SIGNALS:
    /// A value has changed.
    void parameterChanged();

protected:
    /// A remembered value: its key and its widget.
    struct Remembered
    {
        QString key;
        QWidget *widget = nullptr;
        QColor::NameFormat colorFormat = QColor::HexRgb; ///< for a colour button
    };

    /// Registers the widgets that loadSettings() and saveSettings() use: spin boxes, sliders, check
    /// boxes, checkable groups, line edits, colour buttons, and combos, with the data of their
    /// entries if they have any, else with their index. A value that the widget cannot have, for
    /// example because it is out of range, counts as damaged. The current values of the widgets
    /// become the first-run values.
    void remember(const QList<Remembered> &values);

    /// Removes a widget from those registered.
    void forget(const QWidget *widget);

private:
    struct FirstRun
    {
        Remembered remembered;
        QVariant value;
    };

    QList<FirstRun> m_values;
};
