#pragma once

#include "buildings/ui/RememberedPanel.h"
#include "contract/BuildingDocument.h"

#include <memory>

namespace Ui {
class ExtrusionPanel;
}

/// How footprints become bodies: distance of visibility, tile size, skirt, check of directions.
class VltExtrusionPanel : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltExtrusionPanel(QWidget *parent = nullptr);
    ~VltExtrusionPanel() override;

    /// The measures; file, layer and field are empty.
    vlt::contract::BuildingFootprints settings() const;

    /// Leaves the distance of visibility out of the remembered values.
    void forgetDistance();

    /// Widens the column of the values, in pixels, to that of a panel below.
    void alignTo(int columnWidth);

private:
    std::unique_ptr<Ui::ExtrusionPanel> m_ui;
};
