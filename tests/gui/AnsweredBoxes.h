#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

/// What a message box said.
struct SeenBox
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    bool hasDefaultButton = false;
    QString focusedButton; ///< its text
};

/// While it lives, presses `answer` on every message box that opens and keeps what it said. A box
/// without that button is closed by its first one.
class AnsweredBoxes
{
public:
    explicit AnsweredBoxes(QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            seen.append({box->icon(), box->windowTitle(), box->text(), box->standardButtons(),
                         box->defaultButton() != nullptr, focusedText(*box)});
            QAbstractButton *button = box->button(answer);
            (button ? button : box->buttons().constFirst())->click();
        });
        m_timer.start(20);
    }

    QList<SeenBox> seen;

private:
    static QString focusedText(const QMessageBox &box)
    {
        const auto *button = qobject_cast<QAbstractButton *>(box.focusWidget());
        return button ? button->text().remove(QLatin1Char('&')) : QString();
    }

    QTimer m_timer;
};
