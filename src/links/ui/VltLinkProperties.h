#pragma once

#include "links/LinkRepresentation.h"

#include <QWidget>

#include <memory>

namespace Ui {
class LinkProperties;
}

/// The panel with the look of links and of their Fresnel zones, and with the rule that judges their
/// clearance.
class VltLinkProperties : public QWidget
{
    Q_OBJECT

public:
    explicit VltLinkProperties(QWidget *parent = nullptr);
    ~VltLinkProperties() override;

    /// Reads the values remembered under "<prefix>/..."; a value that is missing, damaged or out of
    /// its range is that of a first run. Emits nothing.
    void loadSettings(const QString &prefix);
    void saveSettings(const QString &prefix) const;

    /// The values as they stand.
    vlt::links::LinkRepresentation representation() const;

    /// Puts the groups above each other instead of side by side, for large fonts.
    void setStacked(bool stacked);

Q_SIGNALS:
    /// A value has changed.
    void parameterChanged();

private:
    void limitValues();
    void connectWidgets();
    void setValues(const vlt::links::LinkRepresentation &values);
    void showWidthUnit();
    void showTransparency(int percent);

    std::unique_ptr<Ui::LinkProperties> m_ui;
};
