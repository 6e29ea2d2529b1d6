#pragma once

#include "buildings/ui/VltBuildingLayerPage.h"

#include <memory>

namespace Ui {
class AddTexbPreviewPage;
}

/// The page for the representation of buildings with images.
class VltAddTexbPreviewPage : public VltBuildingLayerPage
{
    Q_OBJECT

public:
    VltAddTexbPreviewPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                          const QString &language);
    ~VltAddTexbPreviewPage() override;

    void initializePage() override;

    /// Takes a colour map or the image of the colours, if walls or roofs use a colour map.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void updatePreview() override;

private:
    QString missingText() const override;
    vlt::Stoppable<vlt::buildings::BuildingLayerFiles>
    writeFiles(const QString &layerPath, vlt::platform::Access access) override;
    void layerWritten(const vlt::buildings::BuildingLayerFiles &files) override;

    void fitWidth();
    void showColoring();
    void showInformation();
    vlt::buildings::TexturingParameters
    texturing(const vlt::buildings::RasterColoring &coloring) const;

    std::unique_ptr<Ui::AddTexbPreviewPage> m_ui;
    QList<vlt::buildings::FileEntry> m_images; ///< the ticked images of the previous page
    QString m_colorMapName;                    ///< name of the layer's colour map
};
