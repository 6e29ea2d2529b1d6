#include "buildings/ui/VltTextureOptions.h"

#include "buildings/BuildingLayerFiles.h"
#include "ui_TextureOptions.h"

VltTextureOptions::VltTextureOptions(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::TextureOptions>())
{
    m_ui->setupUi(this);
    remember({{QStringLiteral("Compression"), m_ui->m_pwCbCompression},
              {QStringLiteral("Resampling"), m_ui->m_pwCbResampling},
              {QStringLiteral("UseBuffer"), m_ui->m_pwChbBuffer},
              {QStringLiteral("Buffer"), m_ui->m_pwSbBuffer},
              {QStringLiteral("UseDilatation"), m_ui->m_pwChbDilatation},
              {QStringLiteral("Dilatation"), m_ui->m_pwSbDilatation}});
}

VltTextureOptions::~VltTextureOptions() = default;

void VltTextureOptions::fill(vlt::buildings::TexbTextures &textures) const
{
    const int compression = m_ui->m_pwCbCompression->currentIndex();
    if (compression > 0) // uncompressed: the document says nothing
        textures.compression = QLatin1String(vlt::buildings::Compressions[compression]);
    if (m_ui->m_pwChbBuffer->isChecked())
        textures.bufferValue = m_ui->m_pwSbBuffer->value();
    if (m_ui->m_pwChbDilatation->isChecked())
        textures.dilatationValue = m_ui->m_pwSbDilatation->value();
    textures.magFilter =
        QLatin1String(vlt::buildings::MagFilters[m_ui->m_pwCbResampling->currentIndex()]);
}
