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

QString DecimalSpinBox::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(value);
    if (!text.contains(locale().decimalPoint()))
        return text;
    while (text.endsWith(locale().zeroDigit()))
        text.chop(1);
    if (text.endsWith(locale().decimalPoint()))
        text.chop(1);
    return text;
}

/// The toolkit measures the limits of the range, which have no decimals.
QSize DecimalSpinBox::withDecimals(QSize size) const
{
    const QString longest = locale().decimalPoint() + QString(decimals(), QLatin1Char('0'));
    size.rwidth() += fontMetrics().horizontalAdvance(longest);
    return size;
}

QSize DecimalSpinBox::sizeHint() const
{
    return withDecimals(QDoubleSpinBox::sizeHint());
}

QSize DecimalSpinBox::minimumSizeHint() const
{
    return withDecimals(QDoubleSpinBox::minimumSizeHint());
}
