#include "wizard/base/ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace {

constexpr int SwatchWidth = 32;
constexpr int SwatchHeight = 14;

QIcon swatch(const QColor &color, const QColor &frame, qreal density)
{
    QPixmap picture(QSizeF(SwatchWidth * density, SwatchHeight * density).toSize());
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::white); // the background of a translucent colour
    QPainter painter(&picture);
    painter.setPen(frame);
    painter.setBrush(color);
    painter.drawRect(0, 0, SwatchWidth - 1, SwatchHeight - 1);
    return QIcon(picture);
}

} // namespace

ColorButton::ColorButton(QWidget *parent) : QPushButton(parent)
{
    setAutoDefault(false);
    setIconSize({SwatchWidth, SwatchHeight});
    connect(this, &QPushButton::clicked, this, &ColorButton::chooseColor);
}

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    updateColor();
}

void ColorButton::setPurpose(const QString &purpose)
{
    m_purpose = purpose;
    updateColor();
}

void ColorButton::updateColor()
{
    QString name = m_color.name().toUpper();
    if (const int transparent = qRound((1 - m_color.alphaF()) * 100); transparent > 0)
        name = tr("%1, %2 % transparent", "MESS_COLOR_TRANSPARENT").arg(name).arg(transparent);
    setText(name);
    setIcon(swatch(m_color, palette().color(QPalette::WindowText), devicePixelRatioF()));
    setAccessibleName(tr("%1: %2", "MESS_COLOR_OF").arg(m_purpose, name));
}

void ColorButton::chooseColor()
{
    QColorDialog::ColorDialogOptions options;
    options.setFlag(QColorDialog::ShowAlphaChannel, m_isAlphaOffered);
    const QColor chosen = QColorDialog::getColor(m_color, this, m_purpose, options);
    if (!chosen.isValid() || chosen == m_color)
        return;
    setColor(chosen);
    Q_EMIT colorChanged();
}
