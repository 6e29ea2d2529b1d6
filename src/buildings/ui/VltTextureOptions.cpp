#include "buildings/ui/VltTextureOptions.h"

#include "ui_TextureOptions.h"

#include "wizard/base/OfferedNumber.h"

VltTextureOptions::VltTextureOptions(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::TextureOptions>())
{
    m_ui->setupUi(this);
    vlt::wizard::offer(m_ui->m_pwSbBuffer, vlt::contract::TextureBufferM);
    vlt::wizard::offer(m_ui->m_pwSbDilatation, vlt::contract::TextureDilatationPixels);
    remember({{QStringLiteral("Compression"), m_ui->m_pwCbCompression},
              {QStringLiteral("Resampling"), m_ui->m_pwCbResampling},
              {QStringLiteral("UseBuffer"), m_ui->m_pwChbBuffer},
              {QStringLiteral("Buffer"), m_ui->m_pwSbBuffer},
              {QStringLiteral("UseDilatation"), m_ui->m_pwChbDilatation},
              {QStringLiteral("Dilatation"), m_ui->m_pwSbDilatation}});
}

VltTextureOptions::~VltTextureOptions() = default;

void VltTextureOptions::fill(vlt::contract::BuildingTextures &textures) const
{
    using namespace vlt::contract;
    textures.compression = static_cast<TextureCompression>(m_ui->m_pwCbCompression->currentIndex());
    if (m_ui->m_pwChbBuffer->isChecked())
        textures.bufferM = m_ui->m_pwSbBuffer->value();
    if (m_ui->m_pwChbDilatation->isChecked())
        textures.dilatationPixels = m_ui->m_pwSbDilatation->value();
    textures.magFilter = static_cast<MagFilter>(m_ui->m_pwCbResampling->currentIndex());
}
