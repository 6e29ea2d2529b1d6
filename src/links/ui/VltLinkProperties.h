#pragma once

#include "links/LinkRepresentation.h"
#include "wizard/base/VltParameterPanel.h"

#include <memory>

namespace Ui {
class LinkProperties;
}

/// The panel with the representation of links and of their Fresnel zones, and with the rule for
/// their clearance.
class VltLinkProperties : public VltParameterPanel
{
    Q_OBJECT

public:
    explicit VltLinkProperties(QWidget *parent = nullptr);
    ~VltLinkProperties() override;

    void setStacked(bool stacked) override;

    /// The current values.
    vlt::links::LinkRepresentation representation() const;

private:
    void offerFirstRun();
    void connectWidgets();
    void showWidthUnit();
    void showTransparency(int percent);

    std::unique_ptr<Ui::LinkProperties> m_ui;
};
