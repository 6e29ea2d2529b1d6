#pragma once

#include "wizard/base/BasePage.h"

#include <QString>
#include <QWizard>

#include <array>

/// The program's window: owns all pages, defines their order, stores its position on the screen and
/// asks before it closes.
class VltTelecomLayersWizard : public QWizard
{
    Q_OBJECT

public:
    /// The pages by their meaning. Their wizard ids are different, see pageId().
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

    /// Opens the file of the command line. A project becomes the first one on the project page. A
    /// table, a raster or footprints are opened on their page, with the first recent project if
    /// there is one. For any other file, a message box gives the reason.
    void openFile(const QString &path);

public Q_SLOTS:
    /// Sets the page that follows the project page and selects the first recent project there.
    void setNextIdOfSecondPage(int id);

    void done(int result) override;

    /// Asks whether to quit; No has no effect.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void restoreWindowGeometry();
    void saveWindowGeometry() const;
    void setUpButtons();
    void addPages();
    void addPageAs(LogicalPage logical, QWizardPage *page);
    void addBuildingPages();
    QString sampleFile(const QString &name) const;
    void openSample();
    void keepOnScreen();
    void focusPage();
    void leadToPageOf(LogicalPage page, const QString &path);
    void openOnPage();

    std::array<int, 8> m_pageIds = {};
    QString m_installDir;
    QString m_language;
    SharedParameters m_parameters;
    QString m_fileToOpen; ///< when the page m_pageToOpenIt is shown
    int m_pageToOpenIt = -1;
};
