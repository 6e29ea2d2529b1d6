#include "buildings/ui/VltBuildingColors.h"

#include "ui_BuildingColors.h"

#include "contract/BuildingDocument.h"

namespace {

/// Whether the second entry of a list is chosen: colours from a colour map.
bool isFromColorMap(const QComboBox *kind)
{
    return kind->currentIndex() == 1;
}

QString plainColor(const QComboBox *kind, const ColorButton *button)
{
    return isFromColorMap(kind) ? QString() : button->color().name();
}

} // namespace

VltBuildingColors::VltBuildingColors(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::BuildingColors>())
{
    m_ui->setupUi(this);
    m_ui->m_pwPbWallColor->setPurpose(tr("Color of the walls", "MESS_WALL_COLOR"));
    m_ui->m_pwPbWallColor->setColor(QColor(vlt::contract::FirstWallColor));
    m_ui->m_pwPbRoofColor->setPurpose(tr("Color of the roofs", "MESS_ROOF_COLOR"));
    m_ui->m_pwPbRoofColor->setColor(QColor(vlt::contract::FirstRoofColor));
    remember({{QStringLiteral("WallColorKind"), m_ui->m_pwCbWalls},
              {QStringLiteral("WallColor"), m_ui->m_pwPbWallColor},
              {QStringLiteral("RoofColorKind"), m_ui->m_pwCbRoofs},
              {QStringLiteral("RoofColor"), m_ui->m_pwPbRoofColor}});
    for (const QComboBox *kind : {m_ui->m_pwCbWalls, m_ui->m_pwCbRoofs})
        connect(kind, &QComboBox::currentIndexChanged, this, &VltBuildingColors::enableWhatMatters);
    connect(m_ui->m_pwPbColoring, &QPushButton::clicked, this, &VltBuildingColors::coloringWanted);
    enableWhatMatters();
}

VltBuildingColors::~VltBuildingColors() = default;

void VltBuildingColors::enableWhatMatters()
{
    m_ui->m_pwPbWallColor->setEnabled(!isFromColorMap(m_ui->m_pwCbWalls));
    m_ui->m_pwPbRoofColor->setEnabled(!isFromColorMap(m_ui->m_pwCbRoofs));
    m_ui->m_pwPbColoring->setVisible(usesColorMap());
}

bool VltBuildingColors::usesColorMap() const
{
    return isFromColorMap(m_ui->m_pwCbWalls) || isFromColorMap(m_ui->m_pwCbRoofs);
}

QString VltBuildingColors::wallColor() const
{
    return plainColor(m_ui->m_pwCbWalls, m_ui->m_pwPbWallColor);
}

QString VltBuildingColors::roofColor() const
{
    return plainColor(m_ui->m_pwCbRoofs, m_ui->m_pwPbRoofColor);
}
