#pragma once

#include <QColor>
#include <QPushButton>

/// A button that shows a colour and opens a dialog for another one.
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(QWidget *parent = nullptr);

    const QColor &color() const { return m_color; }
    /// Sets the colour; emits nothing.
    void setColor(const QColor &color);

    /// Sets the purpose of the colour: the title of the dialog and, with the colour, the accessible
    /// name.
    void setPurpose(const QString &purpose);

    /// Sets whether the user may choose a translucent colour.
    void setAlphaOffered(bool offered) { m_isAlphaOffered = offered; }

Q_SIGNALS:
    /// The user chose another colour.
    void colorChanged();

private:
    void chooseColor();
    void updateColor();

    QColor m_color;
    QString m_purpose;
    bool m_isAlphaOffered = false;
};
