#include "tables/ui/TabOrder.h"

QWidgetList partsThatStandFor(const QWidget &stop)
{
    QWidgetList parts;
    for (QWidget *part : stop.findChildren<QWidget *>()) {
        const QWidget *proxy = part->focusProxy();
        while (proxy && proxy->focusProxy())
            proxy = proxy->focusProxy();
        if (proxy == &stop)
            parts << part;
    }
    return parts;
}

// The toolkit moves a widget together with all widgets between it and a part that shares its focus,
// which may be anywhere, and leaves out widgets that take no focus. Therefore the proxies are
// removed, and all widgets take focus, while the order is set.
void putInOrder(const QWidgetList &widgets)
{
    QWidgetList proxies;
    QList<Qt::FocusPolicy> policies;
    for (QWidget *widget : widgets) {
        proxies << widget->focusProxy();
        widget->setFocusProxy(nullptr);
    }
    for (QWidget *widget : widgets) {
        policies << widget->focusPolicy();
        widget->setFocusPolicy(Qt::StrongFocus);
    }
    for (int i = 1; i < widgets.size(); ++i)
        QWidget::setTabOrder(widgets[i - 1], widgets[i]);
    for (int i = 0; i < widgets.size(); ++i)
        widgets[i]->setFocusPolicy(policies[i]);
    for (int i = 0; i < widgets.size(); ++i)
        widgets[i]->setFocusProxy(proxies[i]);
}
