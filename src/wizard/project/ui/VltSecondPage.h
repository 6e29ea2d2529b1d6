#pragma once

#include "wizard/base/BasePage.h"

#include <memory>

class QListWidgetItem;

namespace Ui {
class SecondPage;
}

/// The page on which the user chooses the builder project for the layer: from the recent ones, with
/// a file dialog, by typing a path or by dropping a file. Publishes "ProjectName".
class VltSecondPage : public BasePage
{
    Q_OBJECT

public:
    VltSecondPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                  const QString &language);
    ~VltSecondPage() override;

    int nextId() const override { return m_nextId; }

    /// Sets the id of the next page; -1 for none.
    void setNextId(int id) { m_nextId = id; }

    /// Adds a project before the recent ones and selects it.
    void offerProject(const QString &path);

    /// Selects the first recent project, if there is one.
    void selectFirstProject();

    /// Refuses, with a message, a project that is not a regular file or cannot be read. Replaces a
    /// pasted text by its path.
    bool validatePage() override;

    /// Stores the last used directory and publishes the project.
    void saveSettings() override;
    void restoreSettings() override;

    /// Accepts files with the suffix "gvw" in lower case.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void selectProject();
    void projectSelected(QListWidgetItem *item);
    void projectDoubleClicked(QListWidgetItem *item);

protected:
    /// Enter in the list or in the line edit continues, like Next.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fillRecentProjects();
    void addProject(int row, const QString &path);
    void showWhetherThereAreProjects();
    void connectWidgets();
    void showWhichProject(const QString &path);
    void showContents();
    QString typedProject() const;

    std::unique_ptr<Ui::SecondPage> m_ui;
    int m_nextId = -1;
    QString m_lastUsedDir;
};
