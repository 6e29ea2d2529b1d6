#pragma once

#include <QCommandLinkButton>

/// A large button with a picture, a title and a description below it. Unlike the toolkit's own it
/// takes the fonts of the system and keeps room for the picture.
class LayerKindButton : public QCommandLinkButton
{
    Q_OBJECT

public:
    using QCommandLinkButton::QCommandLinkButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont titleFont() const;
    QSize textSize(int width) const;
};
