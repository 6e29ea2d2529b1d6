#include "wizard/base/DropInvitation.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

DropInvitation::DropInvitation(QWidget *parent)
    : QFrame(parent)
    , m_heading(new QLabel(this))
    , m_text(new QLabel(this))
{
    constexpr double HeadingScale = 1.25;
    QFont large = font();
    large.setPointSizeF(HeadingScale * large.pointSizeF());
    m_heading->setFont(large);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    for (QLabel *label : {m_heading, m_text}) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addStretch();
}

void DropInvitation::setTexts(const QString &heading, const QString &text)
{
    m_heading->setText(heading);
    m_text->setText(text);
    setAccessibleName(heading);
}

void DropInvitation::paintEvent(QPaintEvent * /*event*/)
{
    constexpr double Radius = 8;
    constexpr double Inset = 1.5; // the pen lies within the widget
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset), Radius, Radius);
}
