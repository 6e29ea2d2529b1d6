#include "wizard/base/DecimalSpinBox.h"

QString DecimalSpinBox::withOwnSeparator(QString text) const
{
    for (const QChar separator : {u'.', u','})
        text.replace(separator, locale().decimalPoint());
    return text;
}

QValidator::State DecimalSpinBox::validate(QString &input, int &position) const
{
    input = withOwnSeparator(input);
    if (input.count(locale().decimalPoint()) > 1)
        return QValidator::Invalid;
    return QDoubleSpinBox::validate(input, position);
}

double DecimalSpinBox::valueFromText(const QString &text) const
{
    return QDoubleSpinBox::valueFromText(withOwnSeparator(text));
}
