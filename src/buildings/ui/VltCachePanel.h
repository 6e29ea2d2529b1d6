#pragma once

#include "buildings/BuildingDocument.h"
#include "buildings/ui/RememberedPanel.h"

#include <memory>
#include <optional>

namespace Ui {
class CachePanel;
}

/// What the builder keeps of buildings that it has made.
class VltCachePanel : public RememberedPanel
{
    Q_OBJECT

public:
    explicit VltCachePanel(QWidget *parent = nullptr);
    ~VltCachePanel() override;

    /// None where nothing is kept.
    std::optional<vlt::buildings::CacheSettings> cache() const;

    /// Of the values, in pixels.
    int columnWidth() const;

private:
    void enableWhatMatters();

    std::unique_ptr<Ui::CachePanel> m_ui;
};
