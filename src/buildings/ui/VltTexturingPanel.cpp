#include "buildings/ui/VltTexturingPanel.h"

#include "ui_TexturingPanel.h"

#include "wizard/base/OfferedNumber.h"

VltTexturingPanel::VltTexturingPanel(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::TexturingPanel>())
{
    m_ui->setupUi(this);
    vlt::wizard::offer(m_ui->m_pwSbTexturedDistance, vlt::contract::TexturedVisibilityM);
    m_ui->m_pwPbEdgeColor->setPurpose(tr("Color of the edges", "MESS_EDGE_COLOR"));
    m_ui->m_pwPbEdgeColor->setColor(QColor(vlt::contract::FirstEdgeColor));
    remember({{QStringLiteral("TextureType"), m_ui->m_pwCbTextureType},
              {QStringLiteral("TexturedDistance"), m_ui->m_pwSbTexturedDistance},
              {QStringLiteral("EdgeColor"), m_ui->m_pwPbEdgeColor},
              {QStringLiteral("ForceEdges"), m_ui->m_pwChbForceEdges},
              {QStringLiteral("ComplexBuildings"), m_ui->m_pwChbComplex}});
}

VltTexturingPanel::~VltTexturingPanel() = default;

vlt::contract::TextureMode VltTexturingPanel::mode() const
{
    return static_cast<vlt::contract::TextureMode>(m_ui->m_pwCbTextureType->currentIndex());
}

double VltTexturingPanel::visibilityM() const
{
    return m_ui->m_pwSbTexturedDistance->value();
}

void VltTexturingPanel::fill(vlt::contract::BuildingTextures &textures) const
{
    textures.edgeColor = m_ui->m_pwPbEdgeColor->color().name().toStdString();
    textures.forceEdgeCreation = m_ui->m_pwChbForceEdges->isChecked();
    textures.processComplexBuildings = m_ui->m_pwChbComplex->isChecked();
}
