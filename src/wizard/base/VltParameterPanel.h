#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QVariant>
#include <QWidget>

/// A panel of values by which a layer is drawn.
class VltParameterPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Reads the values remembered under "<prefix>/..."; the first-run value stands for one that is
    /// missing or damaged. Emits nothing.
    virtual void loadSettings(const QString &prefix);
    virtual void saveSettings(const QString &prefix);

    /// Puts the groups above each other instead of side by side, for large fonts.
    virtual void setStacked(bool /*stacked*/) {}

Q_SIGNALS:
    /// A value has changed.
    void parameterChanged();

protected:
    /// A value that is remembered: its key, and the widget that has it.
    struct Remembered
    {
        QString key;
        QWidget *widget = nullptr;
        QColor::NameFormat colorFormat = QColor::HexRgb; ///< of a colour button
    };

    /// Takes the widgets that loadSettings() and saveSettings() carry: spin boxes, sliders, check
    /// boxes, checkable groups, lines of text, colour buttons, and combos, by the data of their
    /// entries where these have any, else by their index. A value that the widget cannot have, out
    /// of its range for example, is damaged. The values that the widgets have now are those of a
    /// first run.
    void remember(const QList<Remembered> &values);

    /// Takes a widget out again.
    void forget(const QWidget *widget);

private:
    struct FirstRun
    {
        Remembered remembered;
        QVariant value;
    };

    QList<FirstRun> m_values;
};
