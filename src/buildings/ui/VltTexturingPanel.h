#pragma once

#include "buildings/ui/RememberedPanel.h"
#include "contract/BuildingDocument.h"

#include <memory>

namespace Ui {
class TexturingPanel;
}

/// The panel for images on buildings: the part of the buildings, the distance of visibility, the
/// edges.
class VltTexturingPanel : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltTexturingPanel(QWidget *parent = nullptr);
    ~VltTexturingPanel() override;

    vlt::contract::TextureMode mode() const;
    double visibilityM() const;

    /// Sets the values for edges and complex buildings and leaves the others unchanged.
    void fill(vlt::contract::BuildingTextures &textures) const;

private:
    std::unique_ptr<Ui::TexturingPanel> m_ui;
};
