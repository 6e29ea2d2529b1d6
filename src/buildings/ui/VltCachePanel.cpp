#include "buildings/ui/VltCachePanel.h"

#include "ui_CachePanel.h"

#include "wizard/base/OfferedNumber.h"

VltCachePanel::VltCachePanel(QWidget *parent)
    : RememberedPanel(parent)
    , m_ui(std::make_unique<Ui::CachePanel>())
{
    m_ui->setupUi(this);
    vlt::wizard::offer(m_ui->m_pwSbCapacity, vlt::contract::CacheCapacity);
    remember({{QStringLiteral("CacheMode"), m_ui->m_pwCbCache},
              {QStringLiteral("DelayedCacheWrite"), m_ui->m_pwChbDelayed},
              {QStringLiteral("CacheCapacity"), m_ui->m_pwSbCapacity}});
    connect(m_ui->m_pwCbCache, &QComboBox::currentIndexChanged, this,
            &VltCachePanel::enableWhatMatters);
    connect(m_ui->m_pwChbDelayed, &QCheckBox::toggled, this, &VltCachePanel::enableWhatMatters);
    enableWhatMatters();
}

VltCachePanel::~VltCachePanel() = default;

int VltCachePanel::columnWidth() const
{
    return qMax(m_ui->m_pwCbCache->sizeHint().width(), m_ui->m_pwSbCapacity->sizeHint().width());
}

void VltCachePanel::enableWhatMatters()
{
    const bool keeps = m_ui->m_pwCbCache->currentIndex() > 0;
    const bool delays = keeps && m_ui->m_pwChbDelayed->isChecked();
    m_ui->m_pwChbDelayed->setEnabled(keeps);
    m_ui->m_pwLblCapacity->setEnabled(delays);
    m_ui->m_pwSbCapacity->setEnabled(delays);
}

vlt::contract::BuildingCache VltCachePanel::cache() const
{
    return {static_cast<vlt::contract::CacheMode>(m_ui->m_pwCbCache->currentIndex()),
            m_ui->m_pwChbDelayed->isChecked(), m_ui->m_pwSbCapacity->value()};
}
