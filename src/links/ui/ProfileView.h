#pragma once

#include "geodata/LinkProfile.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace vlt::links {

/// The drawing of a link's path, in the colors and the font of the desktop. The figures of a place
/// are shown under the pointer; the keyboard moves the place.
class ProfileView : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileView(QWidget *parent = nullptr);

    /// Nothing empties the view.
    void setProfile(const std::optional<geodata::LinkProfile> &profile);
    const std::optional<geodata::LinkProfile> &profile() const { return m_profile; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QSize sizeInLines(int width, int height) const;
    void drawAgain();
    void drawPicture();
    void mark(double distanceM, int yPx);
    void unmark();
    double markPx() const;
    std::optional<double> keyedPlaceM(int key) const;

    std::optional<geodata::LinkProfile> m_profile;
    QPixmap m_picture;
    QRectF m_plot;                 ///< of the picture
    std::optional<double> m_markM; ///< distance of the marked place from end A
};

} // namespace vlt::links
