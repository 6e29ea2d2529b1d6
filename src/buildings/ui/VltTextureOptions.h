#pragma once

#include "buildings/ui/RememberedPanel.h"
#include "contract/BuildingDocument.h"

#include <memory>

namespace Ui {
class TextureOptions;
}

/// The panel for the pixels of images: compression, buffer, dilatation, resampling.
class VltTextureOptions : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltTextureOptions(QWidget *parent = nullptr);
    ~VltTextureOptions() override;

    /// Sets the values of the panel and leaves the others unchanged.
    void fill(vlt::contract::BuildingTextures &textures) const;

private:
    std::unique_ptr<Ui::TextureOptions> m_ui;
};
