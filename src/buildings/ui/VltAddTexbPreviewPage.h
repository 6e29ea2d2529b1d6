#pragma once

#include "buildings/ui/VltBuildingLayerPage.h"

#include <memory>

namespace Ui {
class AddTexbPreviewPage;
}

/// The page on which it is chosen how buildings with images are shown.
class VltAddTexbPreviewPage : public VltBuildingLayerPage
{
    Q_OBJECT

public:
    VltAddTexbPreviewPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                          const QString &language);
    ~VltAddTexbPreviewPage() override;

    void initializePage() override;

    /// The image that colours come from or a colour map, where walls or roofs are coloured so.
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
    vlt::buildings::TexturedLook look(const vlt::buildings::RasterColoring &coloring) const;

    std::unique_ptr<Ui::AddTexbPreviewPage> m_ui;
    QList<vlt::buildings::FileEntry> m_images; ///< those that are ticked on the page before
    QString m_colorMapName;                    ///< of the layer
};
