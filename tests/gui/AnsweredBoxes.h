#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

/// The texts of a message box.
struct SeenBox
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    bool hasDefaultButton = false;
    QString focusedButton; ///< text of the button with the focus
};

/// Presses `answer` in every message box that opens as long as it exists, and keeps the texts. In a
/// box without that button it presses the first one.
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

/// Checks that one box with an OK button opened; none if `text` is empty.
inline void compareBoxes(const QList<SeenBox> &seen, QMessageBox::Icon icon, const QString &title,
                         const QString &text)
{
    QCOMPARE(seen.size(), text.isEmpty() ? 0 : 1);
    if (text.isEmpty())
        return;
    QCOMPARE(seen.constFirst().icon, icon);
    QCOMPARE(seen.constFirst().title, title);
    QCOMPARE(seen.constFirst().text, text);
    QCOMPARE(seen.constFirst().buttons, QMessageBox::Ok);
}
