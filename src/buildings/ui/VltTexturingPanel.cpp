#include "buildings/ui/VltTexturingPanel.h"

#include "ui_TexturingPanel.h"

using vlt::buildings::TexbSubtype;

VltTexturingPanel::VltTexturingPanel(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::TexturingPanel>())
{
    m_ui->setupUi(this);
    m_ui->m_pwPbEdgeColor->setPurpose(tr("Color of the edges", "MESS_EDGE_COLOR"));
    m_ui->m_pwPbEdgeColor->setColor(QColor(0x40, 0x40, 0x40));
    remember({{QStringLiteral("TextureType"), m_ui->m_pwCbTextureType},
              {QStringLiteral("TexturedDistance"), m_ui->m_pwSbTexturedDistance},
              {QStringLiteral("EdgeColor"), m_ui->m_pwPbEdgeColor},
              {QStringLiteral("ForceEdges"), m_ui->m_pwChbForceEdges},
              {QStringLiteral("ComplexBuildings"), m_ui->m_pwChbComplex}});
}

VltTexturingPanel::~VltTexturingPanel() = default;

TexbSubtype VltTexturingPanel::subtype() const
{
    constexpr TexbSubtype Types[] = {TexbSubtype::Roofs, TexbSubtype::Walls, TexbSubtype::Storeys};
    return Types[m_ui->m_pwCbTextureType->currentIndex()];
}

double VltTexturingPanel::visibility() const
{
    return m_ui->m_pwSbTexturedDistance->value();
}

void VltTexturingPanel::fill(vlt::buildings::TexbTextures &textures) const
{
    textures.edgeColor = m_ui->m_pwPbEdgeColor->color().name();
    textures.forceEdgeCreation = m_ui->m_pwChbForceEdges->isChecked();
    textures.processComplexBuildings = m_ui->m_pwChbComplex->isChecked();
}
