#pragma once

#include "tables/TableFileInfo.h"
#include "tables/TableLayer.h"
#include "tables/ui/TablePageKind.h"
#include "wizard/base/BasePage.h"
#include "wizard/base/BusyWait.h"
#include "wizard/project/ProjectContext.h"

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class TablePage;
}
class DraggableIcon;
class VltParameterPanel;
class VltSrsSettings;
class VltTableDetails;

/// A page on which a table becomes a layer: the table and what was understood of it, its coordinate
/// systems, panels of values, a preview and the icon of the finished layer. The layer is
/// written anew after every change.
///
/// A page of a kind of table makes its panels in its constructor, calls addDetails() and then
/// readRememberedFile().
class VltTablePage : public BasePage
{
    Q_OBJECT

public:
    VltTablePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                 const QString &language, const vlt::tables::TablePageKind &kind);
    ~VltTablePage() override;

    void initializePage() override;
    bool validatePage() override;

    /// Whether a layer can be made of the table.
    bool isComplete() const override;
    int nextId() const override { return -1; }

    void saveSettings() override;
    void restoreSettings() override;
    void droppedFile(const QString &path) override;

    /// Opens a table, shows what it is and makes the layer of it.
    ///
    /// @param quiet  without message boxes
    void readFileInfo(const QString &path, bool quiet);

public Q_SLOTS:
    /// Asks for a table.
    void openTable();

    /// Makes the layer again, as after a change of a value.
    void updatePreview();

    /// The demonstration from beyond the distance of the precise representation.
    void previewSymbolic();
    /// The demonstration from near.
    void previewPrecise();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Restores the settings and reads the remembered table: without a box, a layer or a preview,
    /// which wait until the page is shown.
    void readRememberedFile();

    /// Takes the panel that tells what was understood of the table.
    void addDetails(VltTableDetails *details);

    /// Takes a panel of values, below those that the page has.
    void addPanel(VltParameterPanel *panel);

    /// Reads a table on another thread; an empty value where the user stops it, or where the page
    /// was not shown yet and it takes longer than a moment.
    template<typename Info>
    Info waitForInfo(const QString &path,
                     Info (*read)(const QString &, const vlt::project::ProjectContext &))
    {
        const std::function<Info()> work = [path, read, project = m_project] {
            return read(path, project);
        };
        const std::optional<Info> info =
            m_isActive ? vlt::wizard::waitForValue<Info>(this, m_kind.reading, work)
                       : vlt::wizard::valueWithinMoment<Info>(work);
        return info.value_or(Info());
    }

    /// The part of a layer's input that all kinds have.
    template<typename Input>
    void fillInput(Input &input) const
    {
        input.sourceSrs = systems().source;
        input.targetSrs = systems().target;
        input.project = m_project;
        input.installDir = installDir();
        input.language = language();
    }

    const vlt::project::ProjectContext &project() const { return m_project; }
    /// The chosen coordinate systems.
    vlt::geodata::SystemPair systems() const;

private:
    /// Reads the table and keeps what it is.
    virtual void readTable(const QString &path) = 0;
    /// What the table is that was read last.
    virtual const vlt::tables::TableFileInfo &file() const = 0;
    /// Shows the details of a valid table.
    virtual void showDetails() = 0;
    /// Starts to check the rows of the table.
    virtual void checkRows() = 0;
    /// Why the values make no layer; none where they do.
    virtual std::optional<vlt::Error> missingChoice() const = 0;
    virtual vlt::Result<vlt::tables::TableLayer> makeLayer() const = 0;
    /// Name under which the scene library loads the demonstration.
    virtual QString demonstrationUrl() const = 0;
    /// How far away masts and antennas are still drawn, metres.
    virtual double preciseDistanceM() const = 0;

    void nameWidgets();
    void createPanels();
    void connectWidgets();
    void orderFocus();
    void setStacked(bool stacked);
    void fitInputWidth();
    void showFile();
    void showReason(const QString &reason);
    void showArea(const vlt::geodata::SystemCheck &checked);
    void createLayerFile();
    void showDemonstration();
    void writeLayerFile();
    QString settingsKey(const QString &name) const;

    vlt::tables::TablePageKind m_kind;
    std::unique_ptr<Ui::TablePage> m_ui;
    QList<VltParameterPanel *> m_panels;
    VltSrsSettings *m_panelSrs = nullptr;
    VltTableDetails *m_panelDetails = nullptr;
    DraggableIcon *m_pwDragIcon = nullptr;
    vlt::project::ProjectContext m_project;
    QString m_fileDir;
    QString m_pathRead; ///< what readFileInfo() was last given
    bool m_isActive = false;
    bool m_isReading = false;
    bool m_isCreating = false;
    bool m_createAgain = false;
};
