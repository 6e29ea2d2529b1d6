#pragma once

#include <QFrame>

class QLabel;

/// What a page without data asks for: a dashed frame with a heading and a text below it. The page
/// itself takes what is dropped on it.
class DropInvitation : public QFrame
{
    Q_OBJECT

public:
    explicit DropInvitation(QWidget *parent = nullptr);

    void setTexts(const QString &heading, const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_heading;
    QLabel *m_text;
};
