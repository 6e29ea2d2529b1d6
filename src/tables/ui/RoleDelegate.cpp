#include "tables/ui/RoleDelegate.h"

#include "tables/RoleModel.h"
#include "tables/ui/PanelParts.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QTimer>

namespace vlt::tables {

namespace {

const QStyle &styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

/// The option of a closed combo box that fills a cell.
QStyleOptionComboBox comboOption(const QStyleOptionViewItem &cell)
{
    QStyleOptionComboBox combo;
    combo.rect = cell.rect;
    combo.state = cell.state & ~QStyle::State_HasFocus;
    combo.palette = cell.palette;
    combo.fontMetrics = cell.fontMetrics;
    combo.direction = cell.direction;
    return combo;
}

} // namespace

void RoleDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(RoleModel::IsStatedRole).toBool())
        option->font.setBold(true);
    if (!index.data(RoleModel::IsFoundRole).toBool()) {
        const QColor grey = option->palette.color(QPalette::Disabled, QPalette::Text);
        option->palette.setColor(QPalette::Text, grey);
        option->palette.setColor(QPalette::ButtonText, grey);
    }
}

void RoleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    if (index.column() != RoleModel::Name) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = styleOf(cell);
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    QStyleOptionComboBox combo = comboOption(cell);
    style.drawComplexControl(QStyle::CC_ComboBox, &combo, painter, cell.widget);
    const QRect text = style.subControlRect(QStyle::CC_ComboBox, &combo,
                                            QStyle::SC_ComboBoxEditField, cell.widget);
    const int margin = cell.fontMetrics.averageCharWidth() / 2;
    painter->save();
    painter->setFont(cell.font);
    style.drawItemText(
        painter, text.adjusted(margin, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, cell.palette,
        true, QFontMetrics(cell.font).elidedText(cell.text, Qt::ElideRight, text.width() - margin),
        QPalette::ButtonText);
    painter->restore();
}

QSize RoleDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    const QStyleOptionComboBox combo = comboOption(option);
    const QSize wanted =
        styleOf(option).sizeFromContents(QStyle::CT_ComboBox, &combo, size, option.widget);
    constexpr int Space = 4;
    return {(index.column() == RoleModel::Name ? wanted.width() : size.width()) + Space,
            qMax(size.height(), wanted.height()) + Space};
}

QWidget *RoleDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    static_cast<void>(option);
    const auto *model = qobject_cast<const RoleModel *>(index.model());
    if (!model)
        return nullptr;
    auto *combo = new QComboBox(parent);
    combo->addItems(model->choices(index));
    combo->setAccessibleName(index.siblingAtColumn(RoleModel::Role).data().toString());
    showWholeTexts(combo);
    auto *self = const_cast<RoleDelegate *>(this); // the signals of a delegate are not const
    connect(combo, &QComboBox::activated, self, [self, combo] {
        Q_EMIT self->commitData(combo);
        Q_EMIT self->closeEditor(combo);
    });
    QTimer::singleShot(0, combo, &QComboBox::showPopup);
    return combo;
}

void RoleDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    qobject_cast<QComboBox *>(editor)->setCurrentIndex(index.data(Qt::EditRole).toInt());
}

void RoleDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                const QModelIndex &index) const
{
    model->setData(index, qobject_cast<QComboBox *>(editor)->currentIndex(), Qt::EditRole);
}

} // namespace vlt::tables
