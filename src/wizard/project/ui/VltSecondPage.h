#pragma once

#include "wizard/base/BasePage.h"

#include <memory>

class QListWidgetItem;

namespace Ui {
class SecondPage;
}

/// The page on which the user picks the builder project that the layer will be loaded into: from
/// the recent ones, with a file dialog, by typing or by dropping it. Publishes "ProjectName".
class VltSecondPage : public BasePage
{
    Q_OBJECT

public:
    VltSecondPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                  const QString &language);
    ~VltSecondPage() override;

    int nextId() const override { return m_nextId; }

    /// Sets the page that follows; -1 for none.
    void setNextId(int id) { m_nextId = id; }

    /// Puts a project before the recent ones and chooses it.
    void offerProject(const QString &path);

    /// Makes the first recent project the current one, where there is one.
    void selectFirstProject();

    /// Refuses, with a message, a project that is no regular file or cannot be read; a pasted text
    /// becomes the path that it stands for.
    bool validatePage() override;

    /// Remembers the last used directory and publishes the project.
    void saveSettings() override;
    void restoreSettings() override;

    /// Takes files with the suffix "gvw", in this very case.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void selectProject();
    void projectSelected(QListWidgetItem *item);
    void projectDoubleClicked(QListWidgetItem *item);

protected:
    /// Enter in the list or the line edit goes on, like Next.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fillRecentProjects();
    void addProject(int row, const QString &path);
    void showWhetherThereAreProjects();
    void connectWidgets();
    void showWhichProject(const QString &path);
    void showNotice();
    QString typedProject() const;

    std::unique_ptr<Ui::SecondPage> m_ui;
    int m_nextId = -1;
    QString m_lastUsedDir;
};
