#pragma once

#include "buildings/ui/VltBuildingLayerPage.h"

#include <memory>

namespace Ui {
class AddTexbColoredPage;
}

/// The page on which buildings are coloured from a raster.
class VltAddTexbColoredPage : public VltBuildingLayerPage
{
    Q_OBJECT

public:
    VltAddTexbColoredPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                          const QString &language);
    ~VltAddTexbColoredPage() override;

    /// A text of colours becomes a colour map, anything else the image.
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

    std::unique_ptr<Ui::AddTexbColoredPage> m_ui;
    QString m_colorMapName; ///< of the layer written last
};
