#include "buildings/ui/VltExtrusionPanel.h"

#include "ui_ExtrusionPanel.h"

#include "wizard/base/OfferedNumber.h"

VltExtrusionPanel::VltExtrusionPanel(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::ExtrusionPanel>())
{
    m_ui->setupUi(this);
    vlt::wizard::offer(m_ui->m_pwSbDistance, vlt::contract::ExtrudedVisibilityM);
    vlt::wizard::offer(m_ui->m_pwSbTileSize, vlt::contract::TileSizeM);
    vlt::wizard::offer(m_ui->m_pwSbSkirtSize, vlt::contract::SkirtHeightM);
    alignTo(m_ui->m_pwSbTileSize->sizeHint().width()); // one column for both groups
    remember({{QStringLiteral("TileSize"), m_ui->m_pwSbTileSize},
              {QStringLiteral("SkirtSize"), m_ui->m_pwSbSkirtSize},
              {QStringLiteral("CheckGeom"), m_ui->m_pwCbCheckGeom},
              {QStringLiteral("Distance"), m_ui->m_pwSbDistance}});
}

VltExtrusionPanel::~VltExtrusionPanel() = default;

void VltExtrusionPanel::alignTo(int columnWidth)
{
    for (QAbstractSpinBox *box : findChildren<QAbstractSpinBox *>())
        box->setMinimumWidth(qMax(columnWidth, box->minimumWidth()));
}

vlt::contract::BuildingFootprints VltExtrusionPanel::settings() const
{
    vlt::contract::BuildingFootprints settings;
    settings.tileSizeM = m_ui->m_pwSbTileSize->value();
    settings.extrudedVisibilityM = m_ui->m_pwSbDistance->value();
    settings.skirtHeightM = m_ui->m_pwSbSkirtSize->value();
    settings.checkClockwise = m_ui->m_pwCbCheckGeom->isChecked();
    return settings;
}

void VltExtrusionPanel::forgetDistance()
{
    forget(m_ui->m_pwSbDistance);
}
