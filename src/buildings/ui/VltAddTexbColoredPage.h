#pragma once

#include "buildings/ui/VltBuildingLayerPage.h"

#include <memory>

namespace Ui {
class AddTexbColoredPage;
}

/// The page that colours buildings from a raster or a field of the footprints.
class VltAddTexbColoredPage : public VltBuildingLayerPage
{
    Q_OBJECT

public:
    VltAddTexbColoredPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                          const QString &language);
    ~VltAddTexbColoredPage() override;

    void initializePage() override;

    /// Takes a colour map file as colour map and any other file as the image.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void defineImage();
    void guessNoData();
    void addCmap();
    void currentDatasetChanged();

private:
    QString missingText() const override;
    vlt::Stoppable<vlt::buildings::BuildingLayerFiles>
    writeFiles(const QString &layerPath, vlt::platform::Access access) override;
    void layerWritten(const vlt::buildings::BuildingLayerFiles &files) override;

    void saveValues();

    /// The last layer, for its values.
    struct Valued
    {
        vlt::contract::BuildingDocument document;
        vlt::buildings::RasterColoring coloring;
        vlt::buildings::BuildingLayerInput layer;
    };

    std::unique_ptr<Ui::AddTexbColoredPage> m_ui;
    QString m_colorMapName; ///< of the last layer
    Valued m_valued;
};
