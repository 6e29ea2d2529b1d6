#include "tables/ui/PanelParts.h"

#include "text/RichText.h"

#include <QAbstractItemView>
#include <QStyle>

namespace vlt::tables {

void narrowSpinBoxes(QWidget *panel)
{
    const int textWidthPx = panel->fontMetrics().horizontalAdvance(QStringLiteral("1000000.00 m"));
    for (auto *box : panel->findChildren<QAbstractSpinBox *>()) {
        box->setMinimumWidth(textWidthPx + box->sizeHint().height());
        box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
}

void showWholeTexts(QComboBox *combo)
{
    combo->view()->setMinimumWidth(combo->view()->sizeHintForColumn(0) +
                                   combo->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    const QString purpose = combo->toolTip();
    const auto showChosen = [combo, purpose] {
        const QString chosen = combo->currentText();
        combo->setToolTip(text::asRichText(
            chosen.isEmpty() ? purpose : chosen + QStringLiteral("\n\n") + purpose));
    };
    QObject::connect(combo, &QComboBox::currentIndexChanged, combo, showChosen);
    showChosen();
}

} // namespace vlt::tables
