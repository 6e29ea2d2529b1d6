#pragma once

#include <QPainter>
#include <QWidget>

#include <functional>

/// A part of a view's edge that a function draws; the mouse acts on the view below it.
class AidPlate : public QWidget
{
public:
    using Draw = std::function<void(QPainter &painter, const QRectF &area)>;

    AidPlate(QWidget *parent, Draw draw) : QWidget(parent), m_draw(std::move(draw))
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        m_draw(painter, rect());
    }

private:
    Draw m_draw;
};
