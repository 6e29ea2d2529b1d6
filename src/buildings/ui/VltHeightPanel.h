#pragma once

#include "contract/BuildingHeights.h"
#include "geodata/PolygonSource.h"

#include <QWidget>

#include <memory>

namespace Ui {
class HeightPanel;
}

/// The panel for the meaning of the fields of heights: unit, second field, default height, ground,
/// and for the condition that selects the buildings. It remembers nothing.
class VltHeightPanel : public QWidget
{
    Q_OBJECT

public:
    explicit VltHeightPanel(QWidget *parent = nullptr);
    ~VltHeightPanel() override;

    /// Offers the fields of a layer and resets all values; null for no layer.
    void offer(const vlt::geodata::PolygonLayer *layer);

    /// Selects the unit that the name of the height field suggests.
    void suggestUnit(const QString &heightField);

    vlt::contract::BuildingHeights heights() const;

    /// The SQL condition; empty for all features.
    QString where() const;

Q_SIGNALS:
    void changed();

private:
    void connectWidgets();
    void enableFields();

    std::unique_ptr<Ui::HeightPanel> m_ui;
};
