#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "coverage/CoverageRaster.h"
#include "geodata/RasterSource.h"
#include "wizard/base/VltParameterPanel.h"

#include <QDateTime>

#include <memory>
#include <optional>

namespace Ui {
class ColoringPanel;
}

/// The raster that buildings are coloured from and how: image, its part, value of no data, colour
/// map, stretching, interpretation, reduction.
///
/// Rasters are opened on other threads, with an event loop of their own meanwhile: what is dropped
/// or picked before one is done is left aside.
class VltColoringPanel : public VltParameterPanel
{
    Q_OBJECT

public:
    explicit VltColoringPanel(QWidget *parent = nullptr);
    ~VltColoringPanel() override;

    /// Lists the colour maps of an installation before those that the user added.
    void setInstallDir(const QString &installDir);

    /// What is chosen; nothing without an image of one band or without a colour map, while the path
    /// of another image is being typed, or while the value of no data is no number.
    std::optional<vlt::buildings::RasterColoring> coloring() const;

    /// What coloring() is missing, for the user; empty where it is complete.
    QString missingText() const;

    /// The legend of what is chosen, laid over the raster's least and greatest value where that is
    /// wanted; waits for these where they are not known yet, with a bar. Nothing where raster or
    /// colour map cannot be read, after a message, and where the user does not want to wait.
    std::optional<vlt::buildings::LegendInput> legend();

    /// Path of the image file, absolute; empty where none is open.
    QString imagePath() const;

    /// Opens an image: a box tells where it cannot be used. An empty path closes it.
    ///
    /// @param quiet  without a box
    void openImage(const QString &path, bool quiet);

    /// Adds a colour map file to the list and selects it: a box tells where it is none.
    void openColorMap(const QString &path);

    /// Takes a dropped file: a text of colours becomes a colour map, anything else the image.
    void openDropped(const QString &path);

    /// What a file that is dropped is for.
    QList<QWidget *> dropLabels() const;

    /// The settings of the coloured page, and the folder in which dialogs begin, which all pages
    /// share.
    void loadSettings(const QString &prefix) override;
    void saveSettings(const QString &prefix) override;

public Q_SLOTS:
    void defineImage();
    void guessNoData();
    void addCmap();
    void currentDatasetChanged();

private:
    using Summary = vlt::Result<vlt::geodata::RasterSummary>;

    /// Least and greatest value of a raster, as long as its file stays the same.
    struct KnownRange
    {
        QString raster;
        QString noData;
        QDateTime written;
        std::optional<vlt::coverage::ValueRange> range;
    };

    void connectWidgets();
    void takeTypedImage();
    void showSubdatasets(const QList<vlt::geodata::Subdataset> &subdatasets);
    std::optional<Summary> readSummary(const QString &path, const QString &part);
    void judge(const std::optional<Summary> &summary, const QString &name, bool quiet);
    void judgeSubdataset(bool quiet);
    bool readRange(const vlt::buildings::RasterColoring &coloring);
    QString subdataset() const;
    int addToList(const QString &name, const QString &path);
    QWidget *page();

    std::unique_ptr<Ui::ColoringPanel> m_ui;
    QString m_lastUsedDir;
    QString m_openedImage; ///< absolute path
    bool m_isUsable = false;
    bool m_isBusy = false;
    int m_installedCount = 0; ///< colour maps of the installation: the first of the list
    std::optional<KnownRange> m_range;
};
