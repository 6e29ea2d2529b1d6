#include "buildings/ui/VltExtrusionPanel.h"

#include "ui_ExtrusionPanel.h"

#include "platform/Settings.h"
#include "wizard/base/OfferedNumber.h"
#include "wizard/base/WheelGuard.h"

#include <QSettings>
#include <QSignalBlocker>

#include <cmath>

namespace {

/// A damaged text leaves the box as it is.
template<typename Box>
void restore(Box *box, const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber && std::isfinite(number))
        box->setValue(static_cast<decltype(box->value())>(
            qBound<double>(box->minimum(), number, box->maximum())));
}

} // namespace

VltExtrusionPanel::VltExtrusionPanel(QWidget *parent)
    : VltParameterPanel(parent)
    , m_ui(std::make_unique<Ui::ExtrusionPanel>())
{
    m_ui->setupUi(this);
    vlt::wizard::offer(m_ui->m_pwSbDistance, vlt::contract::ExtrudedVisibilityM);
    vlt::wizard::offer(m_ui->m_pwSbTileSize, vlt::contract::TileSizeM);
    vlt::wizard::offer(m_ui->m_pwSbSkirtSize, vlt::contract::SkirtHeightM);
    vlt::wizard::guardAgainstStrayWheel(this);
    alignTo(m_ui->m_pwSbTileSize->sizeHint().width()); // one column through both groups
    connect(m_ui->m_pwSbDistance, &QSpinBox::valueChanged, this,
            &VltExtrusionPanel::parameterChanged);
    connect(m_ui->m_pwSbTileSize, &QDoubleSpinBox::valueChanged, this,
            &VltExtrusionPanel::parameterChanged);
    connect(m_ui->m_pwCbCheckGeom, &QCheckBox::toggled, this, &VltExtrusionPanel::parameterChanged);
    connect(m_ui->m_pwSbSkirtSize, &QDoubleSpinBox::valueChanged, this,
            &VltExtrusionPanel::parameterChanged);
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

void VltExtrusionPanel::loadSettings(const QString &prefix)
{
    const QSignalBlocker quiet(this);
    const auto settings = vlt::platform::wizardSettings();
    const auto value = [&](const char *key, const QVariant &absent) {
        return settings->value(prefix + QLatin1Char('/') + QLatin1String(key), absent);
    };
    restore(m_ui->m_pwSbTileSize, value("TileSize", vlt::contract::TileSizeM.firstRun));
    restore(m_ui->m_pwSbSkirtSize, value("SkirtSize", vlt::contract::SkirtHeightM.firstRun));
    m_ui->m_pwCbCheckGeom->setChecked(value("CheckGeom", false).toBool());
    if (m_isDistanceRemembered)
        restore(m_ui->m_pwSbDistance,
                value("Distance", vlt::contract::ExtrudedVisibilityM.firstRun));
}

void VltExtrusionPanel::saveSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    const auto save = [&](const char *key, const QVariant &value) {
        settings->setValue(prefix + QLatin1Char('/') + QLatin1String(key), value);
    };
    save("TileSize", m_ui->m_pwSbTileSize->value());
    save("SkirtSize", m_ui->m_pwSbSkirtSize->value());
    save("CheckGeom", m_ui->m_pwCbCheckGeom->isChecked());
    if (m_isDistanceRemembered)
        save("Distance", m_ui->m_pwSbDistance->value());
}
