#pragma once

#include "contract/BuildingDocument.h"

#include "wizard/base/VltParameterPanel.h"

#include <memory>

namespace Ui {
class ExtrusionPanel;
}

/// How footprints become bodies: distance of visibility, tile size, skirt, check of directions.
class VltExtrusionPanel : public VltParameterPanel
{
    Q_OBJECT

public:
    explicit VltExtrusionPanel(QWidget *parent = nullptr);
    ~VltExtrusionPanel() override;

    /// The measures; file, layer and field are empty.
    vlt::contract::BuildingFootprints settings() const;

    /// Whether the distance of visibility is remembered, too; it is unless set otherwise.
    void setDistanceRemembered(bool isRemembered) { m_isDistanceRemembered = isRemembered; }

    void loadSettings(const QString &prefix) override;
    void saveSettings(const QString &prefix) override;

    /// Widens the column of the values, in pixels, to that of a panel below.
    void alignTo(int columnWidth);

private:
    std::unique_ptr<Ui::ExtrusionPanel> m_ui;
    bool m_isDistanceRemembered = true;
};
