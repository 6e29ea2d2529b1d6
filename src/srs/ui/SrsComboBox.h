#pragma once

#include <QComboBox>

/// The combo box of a chooser of coordinate systems: narrow when closed, wide enough to read when
/// open; what does not fit stands in the tool tip.
///
/// The wheel turns through the rows only while the box has the keyboard focus, and never onto a row
/// that opens a dialog. Return in the edited text belongs to the box and presses no button of the
/// window around it.
class SrsComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// Item data: true for a row that opens a dialog.
    static constexpr int OpensDialogRole = Qt::UserRole + 1;
    /// Item data: what a row stands for, as plain text, where the row does not say it itself.
    static constexpr int DefinitionRole = Qt::UserRole + 2;

    explicit SrsComboBox(QWidget *parent = nullptr);

    void showPopup() override;

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QString toolTipText() const;
};
