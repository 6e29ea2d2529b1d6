#include "buildings/ui/VltExtrusionPanel.h"

#include "ui_ExtrusionPanel.h"

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
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ExtrusionPanel>())
{
    m_ui->setupUi(this);
    vlt::wizard::guardAgainstStrayWheel(this);
    alignTo(m_ui->m_pwSbTileSize->sizeHint().width()); // one column through both groups
    connect(m_ui->m_pwSbDistance, &QSpinBox::valueChanged, this, &VltExtrusionPanel::changed);
    connect(m_ui->m_pwSbTileSize, &QDoubleSpinBox::valueChanged, this, &VltExtrusionPanel::changed);
    connect(m_ui->m_pwCbCheckGeom, &QCheckBox::toggled, this, &VltExtrusionPanel::changed);
    connect(m_ui->m_pwSbSkirtSize, &QDoubleSpinBox::valueChanged, this,
            &VltExtrusionPanel::changed);
}

VltExtrusionPanel::~VltExtrusionPanel() = default;

void VltExtrusionPanel::alignTo(int columnWidth)
{
    for (QAbstractSpinBox *box : findChildren<QAbstractSpinBox *>())
        box->setMinimumWidth(qMax(columnWidth, box->minimumWidth()));
}

vlt::buildings::FootprintSettings VltExtrusionPanel::settings() const
{
    vlt::buildings::FootprintSettings settings;
    settings.tileSize = m_ui->m_pwSbTileSize->value();
    settings.extrudedVisibility = m_ui->m_pwSbDistance->value();
    settings.skirtHeight = m_ui->m_pwSbSkirtSize->value();
    settings.checkClockwise = m_ui->m_pwCbCheckGeom->isChecked();
    return settings;
}

void VltExtrusionPanel::restoreSettings(const QSettings &settings, const QString &group,
                                        bool withDistance)
{
    const QSignalBlocker quiet(this);
    const QString prefix = group + QLatin1Char('/');
    restore(m_ui->m_pwSbTileSize, settings.value(prefix + QLatin1String("TileSize"), 250.0));
    restore(m_ui->m_pwSbSkirtSize, settings.value(prefix + QLatin1String("SkirtSize"), 5.0));
    m_ui->m_pwCbCheckGeom->setChecked(
        settings.value(prefix + QLatin1String("CheckGeom"), false).toBool());
    if (withDistance)
        restore(m_ui->m_pwSbDistance, settings.value(prefix + QLatin1String("Distance"), 2000));
}

void VltExtrusionPanel::saveSettings(QSettings &settings, const QString &group,
                                     bool withDistance) const
{
    const QString prefix = group + QLatin1Char('/');
    settings.setValue(prefix + QLatin1String("TileSize"), m_ui->m_pwSbTileSize->value());
    settings.setValue(prefix + QLatin1String("SkirtSize"), m_ui->m_pwSbSkirtSize->value());
    settings.setValue(prefix + QLatin1String("CheckGeom"), m_ui->m_pwCbCheckGeom->isChecked());
    if (withDistance)
        settings.setValue(prefix + QLatin1String("Distance"), m_ui->m_pwSbDistance->value());
}
