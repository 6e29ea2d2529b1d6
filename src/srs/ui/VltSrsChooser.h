#pragma once

#include "srs/LastUsedSrsList.h"
#include "srs/ShownSrsList.h"
#include "srs/SrsEntry.h"
#include "srs/SrsPreferences.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

namespace Ui {
class WidgetVltSrsChooser;
}

/// Lets the user choose one coordinate system: a label, a combo box with the last used systems and
/// the defaults of the installation, and a button that returns to the initial system.
///
/// The row "Other..." opens the search for all systems. If no system is chosen, the combo box shows
/// "Undefined" and accepts a definition: Return stores a valid one under an alias that the user
/// gives; for an invalid one, a line below shows the reason. The choice of the user is added to the
/// last used systems immediately.
class VltSrsChooser : public QWidget
{
    Q_OBJECT

public:
    /// Creates an empty chooser; populate() fills it.
    ///
    /// @param parent        is also the parent of the dialogs
    /// @param withDefaults  include the default systems of the installation
    /// @param withOther     include "Other..."; without it, the chooser neither announces nor
    ///                      stores the rows that the user chooses
    VltSrsChooser(QWidget *parent, const QString &labelText, bool withDefaults, bool withOther);
    ~VltSrsChooser() override;

    /// Fills the combo box and selects its first row; if there are no systems, the choice is
    /// undefined. Emits nothing.
    void populate();

    /// The system of the current row, if it has one.
    std::optional<vlt::srs::SrsEntry> currentEntry() const;

    /// Code of the current row's system; empty for none.
    QString currentCode() const;

    /// Selects the first row that contains a text, in upper or lower case, or no row. With an empty
    /// text, the choice is undefined. Emits SrsSelected.
    void setSrsText(const QString &text);

    /// Selects the system with a code, and adds it to the rows if necessary. With an empty code,
    /// the choice is undefined. The button returns to this system. Emits nothing.
    void setSrsCode(const QString &code);

    /// Selects the system with an EPSG number, another code or a definition, and adds it to the
    /// rows if necessary. With an empty text, the choice is undefined. The button returns to this
    /// system. Emits nothing.
    void setSystem(const QString &systemText);

    /// Sets the data for which the system is chosen; the search prefers systems that fit them.
    void setContext(const vlt::srs::SrsContext &context) { m_context = context; }

    /// The chosen system: the argument of setSystem() until the user chooses another one, else
    /// currentCode().
    QString currentSystem() const;

    /// Selects a system, and adds it to the rows if its code is not among them. Without a system,
    /// or with one that has no code, the choice is undefined. The button returns to this system.
    /// Emits nothing.
    void selectEntry(const std::optional<vlt::srs::SrsEntry> &entry);

Q_SIGNALS:
    /// A choice was made; `qsSrsKey` is currentCode().
    // NOLINTNEXTLINE(readability-identifier-naming): established name of the signal
    void SrsSelected(const QString &qsSrsKey);

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): established names of the slots
    void slot_onSelectSrs(int row);
    void slot_resetSrs();
    void slot_OnValidateEditedSrs();
    // NOLINTEND(readability-identifier-naming)

private:
    enum class OnReturn { Validates, HasNoEffect };

    void setReference(const vlt::srs::SrsEntry &entry);
    int findRow(const QString &text, Qt::MatchFlags match) const;
    void insertRow(int row, const vlt::srs::SrsEntry &entry);
    void colorRow(int row, const QColor &background);
    void describeRow(int row);
    void selectRow(int row);
    void enterUndefinedState(OnReturn onReturn);
    static QString chooseInListText();
    void showHint(const QString &text);
    void clearHint() { showHint({}); }
    void choose(const vlt::srs::SrsEntry &entry);
    void chooseFromDialog();
    bool addUserDefined(const QString &definition);

    std::unique_ptr<Ui::WidgetVltSrsChooser> m_ui;
    QPointer<QWidget> m_parentWidget;
    vlt::srs::ShownSrsList m_shown;
    vlt::srs::LastUsedSrsList m_lastUsed;
    vlt::srs::SrsContext m_context;
    vlt::srs::SrsEntry m_reference; ///< system to which the reset button returns
    QString m_referenceText;        ///< argument of setSystem(); empty if it was not called
    bool m_isAsGiven = false;       ///< the choice is m_referenceText
    bool m_withDefaults;
    bool m_withOther;
};
