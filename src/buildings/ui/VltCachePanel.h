#pragma once

#include "buildings/ui/RememberedPanel.h"
#include "contract/BuildingDocument.h"

#include <memory>

namespace Ui {
class CachePanel;
}

/// The panel with the builder's cache of buildings.
class VltCachePanel : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltCachePanel(QWidget *parent = nullptr);
    ~VltCachePanel() override;

    vlt::contract::BuildingCache cache() const;

    /// Width of the column of values, in pixels.
    int columnWidth() const;

private:
    void enableWhatMatters();

    std::unique_ptr<Ui::CachePanel> m_ui;
};
