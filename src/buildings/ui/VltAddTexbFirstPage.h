#pragma once

#include "buildings/BuildingsSource.h"
#include "buildings/ui/SourceCounter.h"
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

/// The page for the choice of building footprints, the field of their heights and the terrain.
///
/// Files are opened on other threads while an event loop runs; a file that is dropped or picked
/// during this time is ignored.
class VltAddTexbFirstPage : public BasePage
{
    Q_OBJECT

public:
    VltAddTexbFirstPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                        const QString &language);
    ~VltAddTexbFirstPage() override;

    /// Sets the wizard id of a page that may follow.
    void setColoredPageId(int id) { m_coloredPageId = id; }
    void setTexturedPageId(int id) { m_texturedPageId = id; }

    /// Opens the files of the project if it has changed, and the remembered files the first time.
    void initializePage() override;

    /// Refuses, with a message, files that cannot be read, a value of no data that is not a number,
    /// and buildings without an extent.
    bool validatePage() override;
    int nextId() const override;

    /// Also without a height field if a second one is chosen.
    bool isComplete() const override;

    void saveSettings() override;
    void restoreSettings() override;

    /// Takes a raster as the terrain and any other file as the buildings.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void openBuildings();

    /// Shows what the name of the field suggests. The field is read when the user leaves the page,
    /// like the kind, so that typeChanged() has no effect.
    void heightChanged(int index);

    /// Adds the fields of a layer to the list of fields and finds its extent.
    void layerChanged(int index);
    void openDtm();
    void guessNoData();
    void typeChanged();

    /// Opens the buildings; an empty path only closes the current ones.
    ///
    /// @param silent  without a message if the file cannot be opened
    void openVector(const QString &path, bool silent);
    void openVector(const QString &path) { openVector(path, false); }

private:
    void describeWidgets();
    void connectWidgets();
    void connectLine(const QLineEdit *line, const PathPicker *picker);
    void takeProjectFiles();
    void openTerrain(const QString &path);
    void takeTyped(const PathPicker *picker);

    /// Shows a warning if there is a refusal; true if there is none.
    bool accepts(const std::optional<vlt::Error> &refusal);
    bool isPlaced();
    QString heightHint() const;
    vlt::buildings::BuildingsSource chosenSource() const;
    void showSummaries();
    void countSource();
    void showCounts(const SourceCounter::Outcome &outcome);
    QString pick(const QString &title, const QString &files);

    std::unique_ptr<Ui::AddTexbFirstPage> m_ui;
    std::optional<int> m_coloredPageId;
    std::optional<int> m_texturedPageId;
    QString m_lastUsedDir;
    FootprintPicker *m_footprints = nullptr;
    TerrainPicker *m_terrain = nullptr;
    SourceCounter *m_counter = nullptr;
    QString m_projectName; ///< the project whose files were suggested last
    bool m_isBusy = false; ///< a file is being read
};
