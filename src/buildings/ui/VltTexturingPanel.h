#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "buildings/ui/RememberedPanel.h"

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

    vlt::buildings::TexbSubtype subtype() const;

    /// Metres.
    double visibility() const;

    /// Sets what the panel holds but the subtype; the rest stays.
    void fill(vlt::buildings::TexbTextures &textures) const;

private:
    std::unique_ptr<Ui::TexturingPanel> m_ui;
};
