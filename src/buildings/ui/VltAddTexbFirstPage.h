#pragma once

#include "buildings/BuildingsSource.h"
#include "platform/Result.h"
#include "wizard/base/BasePage.h"

#include <memory>
#include <optional>

namespace Ui {
class AddTexbFirstPage;
}
class FootprintPicker;
class PathPicker;
class QLineEdit;
class TerrainPicker;

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

    /// Like typeChanged() of no effect: field and kind are read when the page is left.
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
    void describeWidgets();
    void connectWidgets();
    void connectLine(const QLineEdit *line, const PathPicker *picker);
    void takeProjectFiles();
    void openTerrain(const QString &path);
    void takeTyped(const PathPicker *picker);

    /// Warns the user of a reason not to go on; true where there is none.
    bool accepts(const std::optional<vlt::Error> &refusal);
    bool isPlaced();
    vlt::buildings::BuildingsSource chosenSource() const;
    void showSummaries();
    QString pick(const QString &title, const QString &files);

    std::unique_ptr<Ui::AddTexbFirstPage> m_ui;
    int m_coloredPageId = 999; ///< 999: not set yet
    int m_texturedPageId = 999;
    QString m_lastUsedDir;
    FootprintPicker *m_footprints = nullptr;
    TerrainPicker *m_terrain = nullptr;
    QString m_projectName; ///< that the page last took its guess from
    bool m_isBusy = false; ///< a file is being read
};
