#pragma once

#include "buildings/ui/PathPicker.h"
#include "geodata/RasterSource.h"

class QProgressBar;

/// The choice of the terrain on the source page: its raster and the value of no data.
class TerrainPicker : public PathPicker
{
    Q_OBJECT

public:
    using Summary = vlt::Result<vlt::geodata::RasterSummary>;

    struct Widgets
    {
        QLineEdit *path = nullptr;
        QLineEdit *noData = nullptr;
        QProgressBar *progress = nullptr; ///< shown while the value of no data is guessed
    };

    TerrainPicker(QWidget *page, const Widgets &widgets, bool &isBusy);

    /// Opens a raster; an empty path only closes the current one. A message box reports a raster
    /// that cannot be used.
    void open(const QString &path);

    /// Reads a raster without choosing it; none if the user stopped it.
    std::optional<Summary> read(const QString &path);

    /// Chooses a raster that was read.
    void show(const QString &path, const Summary &terrain);

    void guessNoData();

    /// Why the value of no data cannot be used; none if it can.
    std::optional<vlt::Error> wrongNoData() const;

    /// The chosen raster; none if no usable raster is open.
    const std::optional<vlt::geodata::RasterSummary> &summary() const { return m_summary; }

Q_SIGNALS:
    /// A raster cannot be opened; emitted after changed().
    ///
    /// @param reason  for the user, with the name of the file
    void failed(const QString &reason);

private:
    Widgets m_widgets;
    std::optional<vlt::geodata::RasterSummary> m_summary;
};
