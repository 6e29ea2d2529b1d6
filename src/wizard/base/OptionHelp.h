#pragma once

#include <QLabel>

/// A line that explains the option with the focus, or the one under the pointer, by the text of its
/// tool tip.
class OptionHelp : public QLabel
{
    Q_OBJECT

public:
    explicit OptionHelp(QWidget *parent = nullptr);

    /// Explains the widgets with tool tips in a form that is complete. The first of them is
    /// explained until another is reached.
    void explain(QWidget *form);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const QWidget *option);
};
