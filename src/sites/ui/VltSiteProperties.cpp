#include "sites/ui/VltSiteProperties.h"

#include "sites/PylonQuery.h"
#include "tables/ui/PanelParts.h"
#include "text/RichText.h"
#include "ui_SiteProperties.h"
#include "wizard/base/OfferedNumber.h"
#include "wizard/base/WheelGuard.h"

using vlt::sites::SiteRepresentation;

VltSiteProperties::VltSiteProperties(const QString &installDir, const QString &language,
                                     QWidget *parent)
    : VltParameterPanel(parent)
    , m_ui(std::make_unique<Ui::SiteProperties>())
    , m_catalogues(vlt::sites::loadSiteCatalogues(installDir, language))
    , m_installDir(installDir)
{
    m_ui->setupUi(this);
    offerNumbers();
    vlt::tables::narrowSpinBoxes(this);
    fillCombos();
    remember({{QStringLiteral("SectorHeight"), m_ui->m_pwSbSectorHeight},
              {QStringLiteral("SectorRadius"), m_ui->m_pwSbSectorRadius},
              {QStringLiteral("SectorSpacing"), m_ui->m_pwSbSectorSpacing},
              {QStringLiteral("ColorMenuEntry"), m_ui->m_pwCbSectorColors},
              {QStringLiteral("SymbolicDistance"), m_ui->m_pwSbSymbolicDistance},
              {QStringLiteral("PylonMenuEntry"), m_ui->m_pwCbPylonType},
              {QStringLiteral("RealisticDistance"), m_ui->m_pwSbRealisticDistance},
              {QStringLiteral("GlobalTransparency"), m_ui->m_pwSlTransparency},
              {QStringLiteral("PylonWidth"), m_ui->m_pwSbPylonWidth},
              {QStringLiteral("AntennaSize"), m_ui->m_pwSbAntennaSize}});
    connectWidgets();
}

VltSiteProperties::~VltSiteProperties() = default;

void VltSiteProperties::offerNumbers()
{
    namespace query = vlt::contract::query;
    vlt::wizard::offer(m_ui->m_pwSbSectorHeight, query::SectorHeightM);
    vlt::wizard::offer(m_ui->m_pwSbSectorRadius, query::SectorRadiusM);
    vlt::wizard::offer(m_ui->m_pwSbSectorSpacing, query::SectorSpacingM);
    vlt::wizard::offer(m_ui->m_pwSlTransparency, query::TransparencyPercent);
    vlt::wizard::offer(m_ui->m_pwSbSymbolicDistance, query::SymbolicDistanceM);
    vlt::wizard::offer(m_ui->m_pwSbPylonWidth, query::PylonWidthM);
    vlt::wizard::offer(m_ui->m_pwSbAntennaSize, query::AntennaScalePercent);
    vlt::wizard::offer(m_ui->m_pwSbRealisticDistance, query::RealisticDistanceM);
}

void VltSiteProperties::fillCombos()
{
    // The swatches are drawn for screens of high density and shown at half their size.
    constexpr qreal Density = 2;
    constexpr int PylonPx = 32;
    QSize iconSize(0, 0);
    for (const vlt::sites::SectorColorSet &set : m_catalogues.colorSets) {
        QPixmap swatch = QPixmap::fromImage(set.swatch);
        swatch.setDevicePixelRatio(Density);
        iconSize = iconSize.expandedTo(swatch.deviceIndependentSize().toSize());
        m_ui->m_pwCbSectorColors->addItem(QIcon(swatch), set.description);
    }
    m_ui->m_pwCbSectorColors->setIconSize(iconSize);
    QComboBox *pylons = m_ui->m_pwCbPylonType;
    for (const vlt::sites::PylonType &type : m_catalogues.pylonTypes) {
        const QIcon picture(QStringLiteral(":/pylons/%1.png").arg(type.type));
        pylons->addItem(picture, type.description);
        pylons->setItemData(pylons->count() - 1, vlt::text::asRichText(type.description),
                            Qt::ToolTipRole);
    }
    pylons->setIconSize({PylonPx, PylonPx});
    for (QComboBox *combo : {pylons, m_ui->m_pwCbSectorColors})
        vlt::tables::showWholeTexts(combo);
}

void VltSiteProperties::connectWidgets()
{
    vlt::tables::announceChanges(this);
    connect(m_ui->m_pwSlTransparency, &QSlider::valueChanged, this, [this](int value) {
        m_ui->m_pwLblTransparencyValue->setText(QStringLiteral("%1 %").arg(value));
        Q_EMIT parameterChanged();
    });
    vlt::wizard::guardAgainstStrayWheel(this);
}

void VltSiteProperties::setStacked(bool stacked)
{
    m_ui->m_ptHbMain->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

QString VltSiteProperties::buildPreviewPylonUrl(vlt::contract::TableKind kind) const
{
    if (kind != vlt::contract::TableKind::Sites)
        return {};
    return vlt::sites::buildPreviewPylonUrl(representation(), m_catalogues, m_installDir);
}

SiteRepresentation VltSiteProperties::representation() const
{
    SiteRepresentation values;
    values.sectorHeightM = m_ui->m_pwSbSectorHeight->value();
    values.sectorRadiusM = m_ui->m_pwSbSectorRadius->value();
    values.sectorSpacingM = m_ui->m_pwSbSectorSpacing->value();
    values.colorSet = m_ui->m_pwCbSectorColors->currentIndex();
    values.symbolicDistanceM = m_ui->m_pwSbSymbolicDistance->value();
    values.pylonType = m_ui->m_pwCbPylonType->currentIndex();
    values.realisticDistanceM = m_ui->m_pwSbRealisticDistance->value();
    values.transparencyPercent = m_ui->m_pwSlTransparency->value();
    values.pylonWidthM = m_ui->m_pwSbPylonWidth->value();
    values.antennaScalePercent = m_ui->m_pwSbAntennaSize->value();
    return values;
}
