#pragma once

#include "buildings/BuildingDocument.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ExtrusionPanel;
}
class QSettings;

/// How footprints become bodies: distance of visibility, tile size, skirt, check of directions.
class VltExtrusionPanel : public QWidget
{
    Q_OBJECT

public:
    explicit VltExtrusionPanel(QWidget *parent = nullptr);
    ~VltExtrusionPanel() override;

    /// The measures; file, layer and field are empty.
    vlt::buildings::FootprintSettings settings() const;

    /// Reads or writes "<group>/TileSize", "CheckGeom", "SkirtSize" (and "Distance" where
    /// `withDistance`). Restoring emits nothing.
    void restoreSettings(const QSettings &settings, const QString &group, bool withDistance);
    void saveSettings(QSettings &settings, const QString &group, bool withDistance) const;

    /// Widens the column of the values, in pixels, to that of a panel below.
    void alignTo(int columnWidth);

Q_SIGNALS:
    void changed();

private:
    std::unique_ptr<Ui::ExtrusionPanel> m_ui;
};
