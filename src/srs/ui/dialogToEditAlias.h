#pragma once

#include "srs/SrsEntry.h"

#include <QDialog>

#include <memory>

namespace Ui {
class dialogToEditAlias;
}

/// Asks for the alias of a user-defined coordinate system, and where wanted for its definition.
/// An alias that the user has given to another system is refused with a message box; case does
/// not distinguish aliases.
// NOLINTNEXTLINE(readability-identifier-naming): the dialog's established name
class dialogToEditAlias : public QDialog
{
    Q_OBJECT

public:
    /// Asks for the alias of a new system whose definition is known.
    explicit dialogToEditAlias(QWidget *parent = nullptr);
    ~dialogToEditAlias() override;

    /// Asks for the definition too, and starts with what a system has now: it may keep its alias.
    /// An empty entry asks for both of a new system.
    void editSystem(const vlt::srs::SrsEntry &entry);

    /// Without blanks around it.
    QString alias() const;

    /// In one line; empty where only the alias was asked for.
    QString definition() const;

public Q_SLOTS:
    void accept() override;

private:
    bool isAliasTaken() const;
    void validate();

    std::unique_ptr<Ui::dialogToEditAlias> m_ui;
    QString m_ownAlias;
    bool m_asksDefinition = false;
};
