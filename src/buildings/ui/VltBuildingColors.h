#pragma once

#include "buildings/ui/RememberedPanel.h"

#include <memory>

namespace Ui {
class BuildingColors;
}

/// The colours of walls and roofs: one colour each, or colours from a raster and a colour map.
class VltBuildingColors : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltBuildingColors(QWidget *parent = nullptr);
    ~VltBuildingColors() override;

    /// Whether walls or roofs use a colour map.
    bool usesColorMap() const;

    /// The colour as "#RRGGBB"; empty if a colour map is chosen.
    QString wallColor() const;
    QString roofColor() const;

Q_SIGNALS:
    /// The user wants to see or choose the raster and the colour map.
    void coloringWanted();

private:
    void enableWhatMatters();

    std::unique_ptr<Ui::BuildingColors> m_ui;
};
