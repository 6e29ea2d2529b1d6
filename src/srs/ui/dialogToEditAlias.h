#pragma once

#include "srs/SrsEntry.h"

#include <QDialog>

#include <memory>

namespace Ui {
class dialogToEditAlias;
}

/// Asks for the alias of a user-defined coordinate system and, if requested, for its definition. A
/// message box refuses an alias that another system has; upper and lower case are not
/// distinguished.
// NOLINTNEXTLINE(readability-identifier-naming): the dialog's established name
class dialogToEditAlias : public QDialog
{
    Q_OBJECT

public:
    /// Asks for the alias of a new system with a known definition.
    explicit dialogToEditAlias(QWidget *parent = nullptr);
    ~dialogToEditAlias() override;

    /// Asks for the definition too, and starts with the values of a system, which may keep its
    /// alias. With an empty entry, asks for both values of a new system.
    void editSystem(const vlt::srs::SrsEntry &entry);

    /// The alias without blanks around it.
    QString alias() const;

    /// The definition in one line; empty if only the alias was requested.
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
