#pragma once

#include "wizard/base/BasePage.h"

#include <QString>
#include <QWizard>

#include <array>

/// The program's window: owns all pages, decides their order, remembers its place on the screen and
/// asks before it closes.
class VltTelecomLayersWizard : public QWizard
{
    Q_OBJECT

public:
    /// The pages as the program speaks of them. Their wizard ids differ: see pageId().
    enum class LogicalPage {
        First,
        Project,
        AddSite,
        AddLink,
        BuildingsSource,
        BuildingsColored,
        BuildingsTextured,
        BuildingsDisplay
    };

    /// @param installDir  root of the installation, absolute
    /// @param language    language code ("fr", "en")
    VltTelecomLayersWizard(const QString &installDir, const QString &language,
                           QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /// Wizard id of a page; those of the coloured and the textured buildings are 6 and 5.
    int pageId(LogicalPage page) const { return m_pageIds[static_cast<std::size_t>(page)]; }

    /// Takes a file that was named when the program was started: a project is offered first on the
    /// project page; a table, a raster or footprints lead to their page, with the first recent
    /// project where there is one. A box names the reason for any other file.
    void openFile(const QString &path);

public Q_SLOTS:
    /// Sets what follows the project page and offers the first recent project there.
    void setNextIdOfSecondPage(int id);

    void done(int result) override;

    /// Asks whether to quit; on No nothing happens.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void restorePlace();
    void savePlace() const;
    void setUpButtons();
    void addPages();
    void addPageAs(LogicalPage logical, QWizardPage *page);
    void addBuildingPages();
    void keepOnScreen();
    void focusPage();
    void leadToPageOf(LogicalPage page, const QString &path);
    void openOnPage();

    std::array<int, 8> m_pageIds = {};
    QString m_installDir;
    QString m_language;
    SharedParameters m_parameters;
    QString m_fileToOpen; ///< as soon as m_pageToOpenIt is shown
    int m_pageToOpenIt = -1;
};
