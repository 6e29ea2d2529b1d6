#pragma once

#include "buildings/HeightAdvice.h"
#include "contract/BuildingHeights.h"
#include "geodata/PolygonSource.h"

#include <QWidget>

#include <memory>
#include <optional>

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

    /// Lets Tab go from a widget through the panel to another one.
    void setTabOrderBetween(QWidget *before, QWidget *after);

    /// Selects the unit that the name of the height field suggests.
    void suggestUnit(const QString &heightField);

    vlt::contract::BuildingHeights heights() const;

    /// The SQL condition; empty for all features.
    QString where() const;

    /// Shows in a line what the choices lead to; empty hides the line.
    ///
    /// @param isWrong  nothing is drawn: shown in the colour of mistakes
    void showCounts(const QString &text, bool isWrong);

    /// Shows an advice beside a button that follows it; none hides both.
    void showAdvice(const std::optional<vlt::buildings::HeightAdvice> &advice);

Q_SIGNALS:
    void changed();

private:
    void connectWidgets();
    void enableFields();
    void followAdvice();

    std::unique_ptr<Ui::HeightPanel> m_ui;
    QString m_advisedField; ///< empty: heights above sea level are advised
};
