#pragma once

#include "contract/TableKind.h"
#include "srs/SrsPreferences.h"
#include "wizard/base/VltParameterPanel.h"

class QPushButton;
class VltSrsChooser;

/// The panel with the coordinate systems of a table and of the target project.
class VltSrsSettings : public VltParameterPanel
{
    Q_OBJECT

public:
    /// @param kind  of the table
    explicit VltSrsSettings(vlt::contract::TableKind kind, QWidget *parent = nullptr);

    /// Chooses a system by its EPSG number ("2154") or by any other text that defines one. Emits
    /// nothing.
    void setSourceSrs(const QString &systemText);
    void setTargetSrs(const QString &systemText);

    /// Makes the minimum width of the choosers smaller, for a large font on a small screen.
    void setNarrow(bool narrow);

    /// Sets the context of the choice: a search lists the systems that fit it first.
    void setContext(const vlt::srs::SrsContext &context);

    /// The chosen system as text for layers: the text given to setSourceSrs(), or the code of the
    /// row that the user chose; empty if none is chosen.
    QString sourceSrs() const;
    QString targetSrs() const;

    /// The target system is remembered, under "<prefix>/TargetSrs".
    void loadSettings(const QString &prefix) override;
    void saveSettings(const QString &prefix) override;

public Q_SLOTS:
    /// Asks for a raster or vector file and takes its system as the target. For a file without a
    /// system a message is shown and nothing changes.
    void getTargetEpsgCodeFromDataSource();

private:
    VltSrsChooser *m_pwSource;
    VltSrsChooser *m_pwTarget;
    QPushButton *m_pwPbReadSrs;
};
