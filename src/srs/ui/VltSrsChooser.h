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

/// Lets the user pick one coordinate system: a label, a combo box of the systems used lately and of
/// the installation's defaults, and a button that goes back to the system it started with.
///
/// A row "Other..." opens the search among all systems. While no system is chosen, the combo box
/// says "Undefined" and takes a definition: Return stores a valid one under an alias that the user
/// gives; an invalid one stays as it is, and a line below tells why. Whatever the user settles on
/// goes into the list of the last used systems at once.
class VltSrsChooser : public QWidget
{
    Q_OBJECT

public:
    /// An empty chooser, to be filled by populate().
    ///
    /// @param parent        also parent of the dialogs that the chooser opens
    /// @param withDefaults  list the installation's default systems too
    /// @param withOther     offer "Other..."; a chooser without it neither announces nor records
    ///                      the rows that the user picks
    VltSrsChooser(QWidget *parent, const QString &labelText, bool withDefaults, bool withOther);
    ~VltSrsChooser() override;

    /// Fills the combo box and selects its first row; without any system to show, the choice is
    /// undefined. Emits nothing.
    void populate();

    /// The system of the current row, if it stands for one.
    std::optional<vlt::srs::SrsEntry> currentEntry() const;

    /// Code of the current row's system; empty for none.
    QString currentCode() const;

    /// Selects the first row that contains a text, whatever its case, or no row; an empty text
    /// makes the choice undefined. Emits SrsSelected.
    void setSrsText(const QString &text);

    /// Selects the listed system with a code, or lists a system of that code alone; an empty code
    /// makes the choice undefined. Reset comes back to it. Emits nothing.
    void setSrsCode(const QString &code);

    /// Selects the row of a system that is given by a bare EPSG number, another code or a
    /// definition, or lists it; an empty text makes the choice undefined. Reset comes back to it.
    /// Emits nothing.
    void setSystem(const QString &systemText);

    /// What the system is chosen for: the search lists what fits it first.
    void setContext(const vlt::srs::SrsContext &context) { m_context = context; }

    /// The chosen system: the text that setSystem() was given, until the user chooses; else
    /// currentCode().
    QString currentSystem() const;

    /// Shows and selects a system, which is added to the rows where its code is not among them;
    /// none, or one without code, makes the choice undefined. Reset comes back to it. Emits
    /// nothing.
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
    enum class OnReturn { Validates, StaysAsItIs };

    void setReference(const vlt::srs::SrsEntry &entry);
    int findRow(const QString &text, Qt::MatchFlags match) const;
    void insertRow(int row, const vlt::srs::SrsEntry &entry);
    void colourRow(int row, const QColor &background);
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
    vlt::srs::SrsEntry m_reference; ///< where the reset button goes back to
    QString m_referenceText;        ///< as setSystem() was given it; empty where it was not
    bool m_isAsGiven = false;       ///< whether the choice is that of m_referenceText
    bool m_withDefaults;
    bool m_withOther;
};
