#pragma once

#include <QDoubleSpinBox>

/// A spin box for decimals that takes the point as well as the comma, whichever of them the
/// language writes: in the toolkit's own the other one is a group separator and lost.
class DecimalSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString &input, int &position) const override;
    double valueFromText(const QString &text) const override;

private:
    QString withOwnSeparator(QString text) const;
};
