#pragma once

#include "buildings/ui/RememberedPanel.h"
#include "contract/BuildingDocument.h"

#include <memory>

namespace Ui {
class ExtrusionPanel;
}

/// The panel for the extrusion of footprints: distance of visibility, tile size, skirt, check of
/// directions.
class VltExtrusionPanel : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltExtrusionPanel(QWidget *parent = nullptr);
    ~VltExtrusionPanel() override;

    /// The values; file, layer and field are empty.
    vlt::contract::BuildingFootprints settings() const;

    /// Removes the distance of visibility from the remembered values.
    void forgetDistance();

    /// Widens the column of values to that of the panel below, in pixels.
    void alignTo(int columnWidth);

private:
    std::unique_ptr<Ui::ExtrusionPanel> m_ui;
};
