#pragma once

#include "geodata/PolygonSource.h"
#include "geodata/RasterSource.h"
#include "wizard/base/BasePage.h"

#include <memory>
#include <optional>

namespace Ui {
class AddTexbFirstPage;
}

/// The page on which building footprints, the field of their heights and the terrain are chosen.
///
/// Files are opened on other threads, with an event loop of their own meanwhile: what is dropped or
/// picked before one is done is left aside.
class VltAddTexbFirstPage : public BasePage
{
    Q_OBJECT

public:
    VltAddTexbFirstPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                        const QString &language);
    ~VltAddTexbFirstPage() override;

    /// Wizard ids of the pages that may follow.
    void setColoredPageId(int id) { m_coloredPageId = id; }
    void setTexturedPageId(int id) { m_texturedPageId = id; }

    /// Takes the files of a project that is new to the page; the remembered ones the first time.
    void initializePage() override;

    /// Refuses, with a message, files that cannot be read, a value of no data that is no number and
    /// buildings without a place.
    bool validatePage() override;
    int nextId() const override;

    void saveSettings() override;
    void restoreSettings() override;

    /// A raster becomes the terrain, anything else the buildings.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void openBuildings();
    void heightChanged(int index);

    /// Offers the fields of a layer after those already offered, and finds out where it lies.
    void layerChanged(int index);
    void openDtm();
    void guessNoData();
    void typeChanged();

    /// Opens the buildings; an empty path only closes what was open.
    ///
    /// @param silent  without a message where the file cannot be opened
    void openVector(const QString &path, bool silent);
    void openVector(const QString &path) { openVector(path, false); }

private:
    using TerrainResult = vlt::Result<vlt::geodata::RasterSummary>;

    void describeWidgets();
    void connectWidgets();
    void takeProjectFiles();
    void clearVector();
    void showVector(const QString &path);
    void readExtent(int layer);
    std::optional<TerrainResult> readTerrain(const QString &path);
    void openTerrain(const QString &path);
    void showTerrain(const QString &path, const TerrainResult &terrain);
    void takeTypedBuildings();
    void takeTypedDtm();
    bool isReadableBuildings();
    bool isReadableDtm();
    bool isNoDataNumber();
    bool isPlaced();
    void showSummaries();
    QString pick(const QString &title, const QString &files);
    const vlt::geodata::PolygonLayer *currentLayer() const;

    std::unique_ptr<Ui::AddTexbFirstPage> m_ui;
    int m_coloredPageId = 999; ///< 999: not set yet
    int m_texturedPageId = 999;
    QString m_lastUsedDir;
    std::shared_ptr<vlt::geodata::PolygonSource> m_source; ///< null when none is open
    std::optional<vlt::geodata::Extent> m_extent; ///< of the selected layer; none while not known
    std::optional<vlt::geodata::RasterSummary> m_terrain;
    QString m_projectName;     ///< that the page last took its guess from
    QString m_openedBuildings; ///< what the line edits held when their files were opened
    QString m_openedDtm;
    bool m_isBusy = false;
};
