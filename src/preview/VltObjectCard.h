#pragma once

#include <QFrame>

class QTextBrowser;
class QToolButton;

/// A card over a view with what is known about the object that the user selected: a page that can
/// be scrolled and copied. Escape or its button closes it.
class VltObjectCard : public QFrame
{
    Q_OBJECT

public:
    explicit VltObjectCard(QWidget *view);

    /// Shows a page in the colors and the font of the program.
    ///
    /// @param html  its own styles do not count; it loads neither files nor addresses
    /// @param object  place of the object in the view, which the card leaves free if it can
    void showPage(QString html, const QPointF &object);

    /// Fits the card into the view, which gives the largest size; a low view has no room for it.
    void place();

    /// Hides the card without a signal.
    void dismiss();

Q_SIGNALS:
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QPointF m_object;
    bool m_hasPage = false;
    QTextBrowser *m_pwTbPage;
    QToolButton *m_pwTbClose;
};
