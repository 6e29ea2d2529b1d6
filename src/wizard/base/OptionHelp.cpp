#include "wizard/base/OptionHelp.h"

#include <QEvent>

OptionHelp::OptionHelp(QWidget *parent) : QLabel(parent)
{
    constexpr int Lines = 3; // a longer text must not change the form
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setMinimumHeight(Lines * fontMetrics().lineSpacing());
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
}

void OptionHelp::explain(QWidget *form)
{
    for (QWidget *option = form->nextInFocusChain(); option != form;
         option = option->nextInFocusChain()) {
        if (option->toolTip().isEmpty() || !form->isAncestorOf(option))
            continue;
        option->installEventFilter(this);
        if (text().isEmpty())
            show(option);
    }
}

bool OptionHelp::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::Enter)
        show(static_cast<QWidget *>(watched));
    return QLabel::eventFilter(watched, event);
}

void OptionHelp::show(const QWidget *option)
{
    setText(option->toolTip());
}
