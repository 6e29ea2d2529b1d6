#pragma once

#include "sites/ProjectContext.h"
#include "sites/SiteFileInfo.h"
#include "snapshot/SceneSource.h"
#include "wizard/base/BasePage.h"

#include <QTimer>

#include <memory>

namespace Ui {
class AddSitePage;
}
class DraggableIcon;
class VltSiteDetails;
class VltSiteProperties;
class VltSrsSettings;

/// The page on which a table of sites becomes a site layer.
class VltAddSitePage : public BasePage
{
    Q_OBJECT

public:
    VltAddSitePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                   const QString &language);
    ~VltAddSitePage() override;

    void initializePage() override;
    bool validatePage() override;
    int nextId() const override { return -1; }

    void saveSettings() override;
    void restoreSettings() override;
    void droppedFile(const QString &path) override;

    /// Opens a table, shows what it is and makes the layer of it.
    ///
    /// @param quiet  without message boxes
    void readSiteFileInfo(const QString &path, bool quiet);

public Q_SLOTS:
    /// Asks for a table.
    void openSites();

    /// Makes the layer again, as after a change of a value.
    void updatePreview();

    /// The demonstration pylon from beyond the distance of the precise representation.
    void previewSymbolic();
    /// The demonstration pylon from near.
    void previewPrecise();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createPanels();
    void connectWidgets();
    void fitInputWidth();
    void showFile(const vlt::sites::SiteFileInfo &file);
    void createLayerFile();
    void showPylon();
    bool showOwnSites();
    void refreshOwnSites();
    void chooseScene(bool ownSites);
    void writeLayerFile();

    std::unique_ptr<Ui::AddSitePage> m_ui;
    VltSiteProperties *m_panelProperties = nullptr;
    VltSrsSettings *m_panelSrs = nullptr;
    VltSiteDetails *m_panelDetails = nullptr;
    DraggableIcon *m_pwDragIcon = nullptr;
    vlt::sites::ProjectContext m_project;
    vlt::sites::SiteFileInfo m_file;
    vlt::snapshot::Scene m_pylon; ///< the demonstration pylon; null until one could be loaded
    QTimer m_ownSitesTimer;       ///< gathers quick changes into one load of the layer
    QString m_siteFileDir;
    QString m_pathRead; ///< what readSiteFileInfo() was last given
    bool m_isActive = false;
    bool m_isReading = false;
    bool m_isLoading = false;
    bool m_isCreating = false;
    bool m_createAgain = false;
    bool m_missingPageTold = false;
};
