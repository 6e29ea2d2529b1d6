#pragma once

#include "tables/MappingFiles.h"
#include "tables/RoleTable.h"
#include "tables/TableFileInfo.h"
#include "tables/TableLayer.h"
#include "tables/ui/TablePageConfiguration.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/VltResultPage.h"
#include "wizard/project/ProjectContext.h"

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class TablePage;
}
class VltCures;
class VltSrsSettings;
class VltTableDetails;

/// A page that makes a layer from a table. It shows the table with its recognised columns, its
/// coordinate systems and panels of values. The layer is written again after every change.
///
/// The constructor of a derived page ends with setParts().
class VltTablePage : public VltResultPage
{
    Q_OBJECT

public:
    VltTablePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                 const QString &language, const vlt::tables::TablePageConfiguration &configuration);
    ~VltTablePage() override;

    void initializePage() override;

    /// Whether a layer can be made from the table.
    bool isComplete() const override;

    void saveSettings() override;
    void restoreSettings() override;
    void droppedFile(const QString &path) override;

    /// Opens a table, shows its properties and makes the layer.
    ///
    /// @param quiet  without message boxes
    void readFileInfo(const QString &path, bool quiet);

public Q_SLOTS:
    /// Asks the user for a table.
    void openTable();

    /// Shows the demonstration from beyond the distance of the precise representation.
    void previewSymbolic();
    /// Shows the demonstration from near.
    void previewPrecise();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Takes the parts of the page that depend on the kind of table, then restores the settings and
    /// reads the remembered table, without message boxes. To be called once, at the end of the
    /// constructor.
    ///
    /// @param details  shows the recognised columns and the problems of the table
    /// @param panels   panels of values, from top to bottom
    void setParts(VltTableDetails *details, const QList<VltParameterPanel *> &panels);

    /// Adds a part below the preview; to be called before setParts().
    void addBelowPreview(QWidget *part);

    /// Reads a table into `file` on another thread and returns why it was refused. `file` is empty
    /// after a refusal, for an empty path, if the user stops the read, and if the page is not
    /// visible yet and the read takes longer than a moment.
    template<typename Info>
    std::optional<vlt::Error>
    readInto(std::optional<Info> &file, const QString &path,
             vlt::Result<Info> (*read)(const QString &, const vlt::project::ProjectContext &,
                                       const vlt::tables::TableReading &))
    {
        struct Read
        {
            vlt::Result<Info> info;
            vlt::geodata::TableOverview overview;
        };
        file.reset();
        m_overview = {};
        if (path.isEmpty())
            return std::nullopt;
        const std::function<Read()> work = [path, read, project = m_project,
                                            kind = m_configuration.kind] {
            vlt::tables::TableReading reading;
            reading.columns = vlt::tables::mappingOption(path);
            vlt::Result<Info> info = read(path, project, reading);
            const QString connection = reading.connection(kind, path);
            if (!info) {
                const auto overview = vlt::geodata::readTableOverview(connection);
                return Read{info, overview ? overview.value() : vlt::geodata::TableOverview()};
            }
            const auto excerpt = vlt::geodata::readTableExcerpt(connection);
            return Read{
                info,
                {excerpt ? excerpt.value() : vlt::geodata::TableExcerpt(), info.value().roles}};
        };
        const std::optional<Read> outcome =
            isShown() ? vlt::wizard::waitForValue<Read>(this, m_configuration.reading, work)
                      : vlt::wizard::valueWithinMoment<Read>(work);
        if (!outcome)
            return std::nullopt;
        m_overview = outcome->overview;
        if (!outcome->info)
            return outcome->info.error();
        file = outcome->info.value();
        return std::nullopt;
    }

    /// Fills the part of a layer's input that all kinds have.
    template<typename Input>
    void fillInput(Input &input) const
    {
        input.sourceSrs = systems().source;
        input.targetSrs = systems().target;
        input.project = m_project;
        input.installDir = installDir();
        input.language = language();
    }

    /// A connection with what the check of the rows needs beside it.
    QString checkedConnection(const QString &connection) const;

    const vlt::project::ProjectContext &project() const { return m_project; }
    /// The chosen coordinate systems.
    vlt::geodata::SystemPair systems() const;

private:
    /// Reads the table with readInto() and returns why it was refused.
    virtual std::optional<vlt::Error> readTable(const QString &path) = 0;
    /// The table that was read last; null for none.
    virtual const vlt::tables::TableFileInfo *file() const = 0;
    /// Shows the details of the table, without those of its rows.
    virtual void showDetails() = 0;
    /// Whether the table, or a table that was refused with this reason, needs another one: for its
    /// transmitters, or for the sites at the ends of links.
    virtual bool needsSecondTable(const std::optional<vlt::Error> &refusal) const = 0;
    /// Starts to check the rows of the table.
    virtual void checkRows() = 0;
    /// Why no layer can be made from the values; none if one can.
    virtual std::optional<vlt::Error> missingChoice() const = 0;
    virtual vlt::Result<vlt::tables::TableLayer> composeLayer() const = 0;
    /// Name by which the scene library loads the demonstration.
    virtual QString demonstrationUrl() const = 0;
    /// Maximum distance at which masts and antennas are drawn, metres.
    virtual double preciseDistanceM() const = 0;

    void nameWidgets();
    void createPanels();
    void connectWidgets();
    void orderFocus();
    void setStacked(bool stacked);
    void fitInputWidth();
    void growInputWidth();
    int neededInputWidth() const;
    int largestInputWidth() const;
    void readFile(const QString &path, bool quiet);
    void readFileAgain();
    void useMapping(const vlt::contract::ColumnMapping &mapping);
    void saveMapping();
    void reportFailure(const vlt::Result<vlt::Done> &outcome);
    void showFile();
    void showMapping();
    void showRefused();
    void showCures();
    void showSystems();
    QString fileReason() const;
    void showReason(const QString &reason);
    void leaveEmptyLayer();
    void showArea(const vlt::geodata::SystemCheck &checked);
    void showDemonstration();

    void beginLayer() override;
    std::optional<QString> obstacle() const override;
    vlt::Stoppable<vlt::Done> writeLayer(const QString &path,
                                         vlt::platform::Access access) override;
    void showLayer(const QString &path) override;
    void showNoLayer(const QString &why) override;
    QString settingsKey(const QString &name) const;

    vlt::tables::TablePageConfiguration m_configuration;
    std::unique_ptr<Ui::TablePage> m_ui;
    VltSrsSettings *m_panelSrs = nullptr;
    QWidget *m_belowPreview = nullptr;
    VltTableDetails *m_details = nullptr;
    VltCures *m_cures = nullptr;
    vlt::project::ProjectContext m_project;
    QString m_fileDir;
    /// Of the table; without columns if it is no table. A refused one may have them.
    vlt::geodata::TableOverview m_overview;
    QString m_pathRead;                  ///< the last path given to readFileInfo()
    std::optional<vlt::Error> m_refusal; ///< of that table
};
