#pragma once

#include <QDoubleSpinBox>

/// A spin box for decimals that shows as many of them as the value has and accepts both point and
/// comma, in every language. The toolkit's spin box ignores the one that the language does not use,
/// because it is a group separator.
class DecimalSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString &input, int &position) const override;
    double valueFromText(const QString &text) const override;
    QString textFromValue(double value) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QString withOwnSeparator(QString text) const;
    QSize withDecimals(QSize size) const;
};
