#pragma once

#include "buildings/ui/ReadColors.h"
#include "geodata/RasterSource.h"
#include "wizard/base/VltParameterPanel.h"

#include <memory>
#include <optional>

namespace Ui {
class ColoringPanel;
}
class ColorMapChoice;
class StretchControls;

/// The panel for colours from a raster: image, its part and band, value of no data, colour map,
/// stretching, interpretation, reduction; or from a field of the footprints, if any are offered.
///
/// Rasters are opened on other threads while an event loop runs; a file that is dropped or picked
/// during this time is ignored.
class VltColoringPanel : public VltParameterPanel
{
    Q_OBJECT

public:
    explicit VltColoringPanel(QWidget *parent = nullptr);
    ~VltColoringPanel() override;

    /// Lists the colour maps of an installation before those that the user added.
    void setInstallDir(const QString &installDir);

    /// Offers fields of the footprints in place of a raster and chooses the remembered one, or the
    /// raster if there is no such field. Emits nothing.
    ///
    /// @param fields  of numbers or texts; empty: only a raster can be chosen
    void offerFields(const QList<vlt::geodata::VectorField> &fields);

    /// The choice that colors() still needs, as text for the user; empty if it is complete.
    QString missingText() const;

    /// The chosen values with their legend, see readColors(); none while a choice is missing, too.
    std::optional<vlt::buildings::ReadColors>
    colors(const vlt::buildings::BuildingLayerInput &layer);

    /// Absolute path of the image file; empty if none is open.
    QString imagePath() const;

    /// Opens an image; a message box reports an image that cannot be used. An empty path closes the
    /// current one.
    ///
    /// @param quiet  without a box
    void openImage(const QString &path, bool quiet);

    /// Adds a colour map file to the list and selects it; a message box reports a file that is not
    /// a colour map.
    void openColorMap(const QString &path);

    /// Takes a dropped colour map file as colour map and any other file as the image.
    void openDropped(const QString &path);

    /// The labels of the widgets that take a dropped file.
    QList<QWidget *> dropLabels() const;

    /// Reads the settings of the coloured page and the start folder of dialogs, which all pages
    /// share.
    void loadSettings(const QString &prefix) override;
    void saveSettings(const QString &prefix) override;

Q_SIGNALS:
    /// An image is being read; parameterChanged() follows.
    void readingImage();

public Q_SLOTS:
    void defineImage();
    void guessNoData();
    void addCmap();
    void currentDatasetChanged();

private:
    using Summary = vlt::Result<vlt::geodata::RasterSummary>;

    void connectWidgets();
    void showRows();
    bool isOfField() const;
    bool isOfTexts() const;
    QString missingOfRaster() const;
    void takeTypedImage();
    void showSubdatasets(const QList<vlt::geodata::Subdataset> &subdatasets);
    void showBands(const QStringList &bands);
    std::optional<Summary> readSummary(const QString &path, const QString &part);
    void check(const std::optional<Summary> &summary, const QString &name, bool quiet);
    void checkSubdataset(bool quiet);
    void guessColors(const QStringList &bands);
    std::optional<vlt::buildings::RasterColoring> coloring() const;
    QString subdataset() const;
    int band() const;
    QWidget *page();

    std::unique_ptr<Ui::ColoringPanel> m_ui;
    StretchControls *m_stretch = nullptr;
    std::unique_ptr<ColorMapChoice> m_colorMaps;
    QString m_lastUsedDir;
    QString m_field;       ///< that colours the buildings; empty: the raster does
    QString m_openedImage; ///< absolute path of the image file
    bool m_isUsable = false;
    bool m_isBusy = false;
    bool m_mayGuess = true; ///< the user has not chosen colors
    bool m_isGuessing = false;
};
