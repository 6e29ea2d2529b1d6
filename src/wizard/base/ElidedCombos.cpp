#include "wizard/base/ElidedCombos.h"

#include <QApplication>
#include <QComboBox>
#include <QStylePainter>

namespace vlt::wizard {

namespace {

/// Gives access to the protected function of all lists.
struct Opener : QComboBox
{
    static QStyleOptionComboBox optionOf(const QComboBox &combo)
    {
        QStyleOptionComboBox option;
        (combo.*(&Opener::initStyleOption))(&option);
        return option;
    }
};

/// The text as it fits; the same text if it fits whole.
QString elided(const QComboBox &combo, const QStyleOptionComboBox &option)
{
    constexpr int IconGap = 4;
    constexpr int TextMargins = 2;
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    const int iconWidth = option.currentIcon.isNull() ? 0 : option.iconSize.width() + IconGap;
    return option.fontMetrics.elidedText(option.currentText, Qt::ElideRight,
                                         field.width() - iconWidth - TextMargins);
}

class ComboEliding : public QObject
{
public:
    explicit ComboEliding(QObject *owner) : QObject(owner) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *combo = event->type() == QEvent::Paint ? qobject_cast<QComboBox *>(watched) : nullptr;
        if (!combo || combo->isEditable() || combo->currentIndex() < 0)
            return false;
        QStyleOptionComboBox option = Opener::optionOf(*combo);
        const QString text = elided(*combo, option);
        if (text == option.currentText)
            return false;
        QStylePainter painter(combo);
        painter.setPen(combo->palette().color(QPalette::Text));
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        option.currentText = text;
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
        return true;
    }
};

} // namespace

void elideCombos(QObject *owner)
{
    new ComboEliding(owner);
}

} // namespace vlt::wizard
