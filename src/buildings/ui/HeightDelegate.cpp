#include "buildings/ui/HeightDelegate.h"

#include <QLineEdit>

#include <cmath>

namespace vlt::buildings {

QString HeightDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
}

QWidget *HeightDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                                      const QModelIndex &index) const
{
    auto *line = new QLineEdit(parent);
    line->setFrame(false);
    line->setAlignment(Qt::Alignment::fromInt(index.data(Qt::TextAlignmentRole).toInt()));
    line->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    return line;
}

void HeightDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    QLocale locale = editor->locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    auto *line = static_cast<QLineEdit *>(editor);
    line->setText(displayText(index.data(Qt::EditRole), locale));
    line->selectAll();
}

void HeightDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                  const QModelIndex &index) const
{
    QString typed = static_cast<QLineEdit *>(editor)->text().trimmed();
    typed.replace(u',', u'.');
    bool isNumber = false;
    const double height = typed.toDouble(&isNumber);
    if (isNumber && std::isfinite(height))
        model->setData(index, height, Qt::EditRole);
}

} // namespace vlt::buildings
