#pragma once

#include <QCommandLinkButton>

/// A large button with an icon, a title and a description below the title. Unlike the toolkit's
/// button, it uses the fonts of the system and reserves space for the icon.
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
