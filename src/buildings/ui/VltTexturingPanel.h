#pragma once

#include "buildings/ui/RememberedPanel.h"
#include "contract/BuildingDocument.h"

#include <memory>

namespace Ui {
class TexturingPanel;
}

/// How images are shown on buildings: on which part, up to which distance, with which edges.
class VltTexturingPanel : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltTexturingPanel(QWidget *parent = nullptr);
    ~VltTexturingPanel() override;

    vlt::contract::TextureMode mode() const;
    double visibilityM() const;

    /// Sets what the panel holds of edges and complex buildings; the rest stays.
    void fill(vlt::contract::BuildingTextures &textures) const;

private:
    std::unique_ptr<Ui::TexturingPanel> m_ui;
};
