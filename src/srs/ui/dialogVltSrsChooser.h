#pragma once

#include "srs/DefaultSrsList.h"
#include "srs/LastUsedSrsList.h"
#include "srs/SrsEntry.h"
#include "srs/SrsPreferences.h"
#include "srs/SrsSearch.h"
#include "srs/UserDefinedSrsList.h"

#include <QDialog>
#include <QFutureWatcher>

#include <memory>
#include <optional>

class QAbstractButton;

namespace Ui {
class dialogVltSrsChooser;
}

namespace vlt::srs {
class SrsListModel;
class SrsSearchModel;
class SrsTable;
} // namespace vlt::srs

/// Lets the user choose one coordinate system: by a search in the PROJ database, or from the
/// default, the last used or the user-defined systems. The two latter lists can be edited here;
/// their changes are saved immediately, even if the dialog is cancelled.
///
/// A PROJ text or WKT instead of words can be added as a user-defined system. The user can type
/// while the database is being read; the results appear afterwards.
// NOLINTNEXTLINE(readability-identifier-naming): the dialog's established name
class dialogVltSrsChooser : public QDialog
{
    Q_OBJECT

public:
    /// @param current  the initially selected system; an empty code for none
    /// @param context  the data for which the system is chosen; systems that fit them come first
    explicit dialogVltSrsChooser(QWidget *parent = nullptr, const vlt::srs::SrsEntry &current = {},
                                 const vlt::srs::SrsContext &context = {});
    ~dialogVltSrsChooser() override;

    /// The chosen system; nothing if the dialog was cancelled.
    std::optional<vlt::srs::SrsEntry> chosenEntry() const;

public Q_SLOTS:
    void done(int result) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void createTables();
    void createKinds();
    void createActions();
    void connectWidgets();
    void restoreSize();

    void addTableAction(vlt::srs::SrsTable *table, QAbstractButton *button,
                        const QKeySequence &shortcut, void (dialogVltSrsChooser::*slot)());
    vlt::srs::SrsTable *currentTable() const;

    void showLoadedSystems();
    void search();
    void searchText();
    void selectCurrent();
    void showState();
    void showSelection();
    void showLists();

    void addUserDefined();
    void addTypedDefinition();
    void define(const vlt::srs::SrsEntry &start);
    void editUserDefined();
    void removeUserDefined();
    void removeLastUsed();
    int lastUsedIndex(const vlt::srs::SrsEntry &userDefined) const;

    std::unique_ptr<Ui::dialogVltSrsChooser> m_ui;
    vlt::srs::DefaultSrsList m_default;
    vlt::srs::LastUsedSrsList m_lastUsed;
    vlt::srs::UserDefinedSrsList m_userDefined;
    QFutureWatcher<vlt::srs::SharedSrsSearch> m_loading;
    vlt::srs::SrsSearchModel *m_found = nullptr;
    vlt::srs::SrsListModel *m_defaultModel = nullptr;
    vlt::srs::SrsListModel *m_lastUsedModel = nullptr;
    vlt::srs::SrsListModel *m_userDefinedModel = nullptr;
    vlt::srs::SrsEntry m_current;
    vlt::srs::SrsPreferences m_preferences;
    std::optional<vlt::srs::SrsEntry> m_chosen;
};
