#include "sites/ui/VltSiteProperties.h"

#include "platform/Settings.h"
#include "sites/PylonQuery.h"
#include "tables/ui/PanelParts.h"
#include "ui_SiteProperties.h"
#include "wizard/base/WheelGuard.h"

#include <QSettings>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace {

using vlt::sites::SiteRepresentation;

/// A remembered value: its key and how it is carried to and from the settings. What does not read
/// as a number leaves the representation as it is.
struct Remembered
{
    QString key;
    std::function<void(SiteRepresentation &, const QVariant &)> read;
    std::function<QVariant(const SiteRepresentation &)> write;
};

template<typename Number>
Remembered remembered(const char *key, Number SiteRepresentation::*member)
{
    return {QString::fromLatin1(key),
            [member](SiteRepresentation &to, const QVariant &value) {
                constexpr double Most = std::numeric_limits<Number>::max();
                bool isNumber = false;
                const double number = value.toDouble(&isNumber);
                if (isNumber && std::isfinite(number))
                    to.*member = static_cast<Number>(std::clamp(number, -Most, Most));
            },
            [member](const SiteRepresentation &from) { return QVariant(from.*member); }};
}

const std::vector<Remembered> &rememberedValues()
{
    static const std::vector<Remembered> values = {
        remembered("SectorHeight", &SiteRepresentation::sectorHeightM),
        remembered("SectorRadius", &SiteRepresentation::sectorRadiusM),
        remembered("SectorSpacing", &SiteRepresentation::sectorSpacingM),
        remembered("ColorMenuEntry", &SiteRepresentation::colorSet),
        remembered("SymbolicDistance", &SiteRepresentation::symbolicDistanceM),
        remembered("PylonMenuEntry", &SiteRepresentation::pylonType),
        remembered("RealisticDistance", &SiteRepresentation::realisticDistanceM),
        remembered("GlobalTransparency", &SiteRepresentation::transparencyPercent),
        remembered("PylonWidth", &SiteRepresentation::pylonWidthM),
        remembered("AntennaSize", &SiteRepresentation::antennaScalePercent),
    };
    return values;
}

} // namespace

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
    connectWidgets();
}

VltSiteProperties::~VltSiteProperties() = default;

void VltSiteProperties::offerNumbers()
{
    namespace query = vlt::contract::query;
    vlt::tables::offer(m_ui->m_pwSbSectorHeight, query::SectorHeightM);
    vlt::tables::offer(m_ui->m_pwSbSectorRadius, query::SectorRadiusM);
    vlt::tables::offer(m_ui->m_pwSbSectorSpacing, query::SectorSpacingM);
    vlt::tables::offer(m_ui->m_pwSlTransparency, query::TransparencyPercent);
    vlt::tables::offer(m_ui->m_pwSbSymbolicDistance, query::SymbolicDistanceM);
    vlt::tables::offer(m_ui->m_pwSbPylonWidth, query::PylonWidthM);
    vlt::tables::offer(m_ui->m_pwSbAntennaSize, query::AntennaScalePercent);
    vlt::tables::offer(m_ui->m_pwSbRealisticDistance, query::RealisticDistanceM);
}

void VltSiteProperties::fillCombos()
{
    // swatches are drawn for a dense screen and shown at half their size
    constexpr qreal Density = 2;
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
        pylons->addItem(type.description);
    }
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

void VltSiteProperties::loadSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    SiteRepresentation values;
    for (const Remembered &value : rememberedValues())
        value.read(values,
                   settings->value(prefix + QLatin1Char('/') + value.key, value.write(values)));

    const bool wereBlocked = blockSignals(true);
    m_ui->m_pwSbSectorHeight->setValue(values.sectorHeightM);
    m_ui->m_pwSbSectorRadius->setValue(values.sectorRadiusM);
    m_ui->m_pwSbSectorSpacing->setValue(values.sectorSpacingM);
    vlt::tables::selectEntry(m_ui->m_pwCbSectorColors, values.colorSet);
    m_ui->m_pwSbSymbolicDistance->setValue(values.symbolicDistanceM);
    vlt::tables::selectEntry(m_ui->m_pwCbPylonType, values.pylonType);
    m_ui->m_pwSbRealisticDistance->setValue(values.realisticDistanceM);
    m_ui->m_pwSlTransparency->setValue(values.transparencyPercent);
    m_ui->m_pwSbPylonWidth->setValue(values.pylonWidthM);
    m_ui->m_pwSbAntennaSize->setValue(values.antennaScalePercent);
    blockSignals(wereBlocked);
}

void VltSiteProperties::saveSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    const SiteRepresentation values = representation();
    for (const Remembered &value : rememberedValues())
        settings->setValue(prefix + QLatin1Char('/') + value.key, value.write(values));
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
