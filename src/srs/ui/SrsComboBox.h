#pragma once

#include <QComboBox>

/// The combo box of a chooser of coordinate systems: narrow when closed, wide enough to read when
/// open; what does not fit stands in the tool tip.
///
/// A row is chosen in the open list only: the wheel does nothing, and keys that go to another row
/// of the closed box open it. Return in the edited text belongs to the box and presses no button of
/// the window around it.
class SrsComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// Item data: what a row stands for, as plain text, where the row does not say it itself.
    static constexpr int DefinitionRole = Qt::UserRole + 1;

    explicit SrsComboBox(QWidget *parent = nullptr);

    /// Tool tip of the text while it can be edited.
    void setEditTip(const QString &text) { m_editTip = text; }

    void showPopup() override;

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool goesToAnotherRow(const QKeyEvent &event) const;
    QString toolTipText() const;

    QString m_editTip;
};
