#pragma once

#include <QComboBox>

/// The combo box of a chooser of coordinate systems: narrow if closed, and wide enough for its
/// texts if open. The tool tip has the whole text.
///
/// A row can be chosen only in the open list: the wheel has no effect, and keys that would go to
/// another row of the closed box open it. Return in the edited text does not press a button of the
/// window.
class SrsComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// Item data: the definition of a row as plain text, if it is not in the row's own text.
    static constexpr int DefinitionRole = Qt::UserRole + 1;

    explicit SrsComboBox(QWidget *parent = nullptr);

    /// Sets the tool tip of the editable text.
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
