#include "links/ui/VltLinkProperties.h"

#include "tables/ui/PanelParts.h"
#include "ui_LinkProperties.h"
#include "wizard/base/OfferedNumber.h"
#include "wizard/base/WheelGuard.h"

using vlt::links::LinkRepresentation;
using vlt::links::LinkStyle;
using vlt::links::linkStyleText;

VltLinkProperties::VltLinkProperties(QWidget *parent)
    : VltParameterPanel(parent)
    , m_ui(std::make_unique<Ui::LinkProperties>())
{
    m_ui->setupUi(this);
    m_ui->m_pwCbLinkStyle->addItem(QIcon(QStringLiteral(":/icons/link-line.png")),
                                   tr("Line", "MESS_STYLE_LINE"), linkStyleText(LinkStyle::Line));
    m_ui->m_pwCbLinkStyle->addItem(QIcon(QStringLiteral(":/icons/link-tube.png")),
                                   tr("Tube", "MESS_STYLE_TUBE"), linkStyleText(LinkStyle::Tube));
    m_ui->m_pwCbLinkStyle->addItem(QIcon(QStringLiteral(":/icons/link-band.png")),
                                   tr("Band", "MESS_STYLE_BAND"),
                                   linkStyleText(LinkStyle::Billboard));
    m_ui->m_pwPbLinkColor->setPurpose(tr("Color of the links", "MESS_PURPOSE_LINK_COLOR"));
    m_ui->m_pwPbLinkColor->setAlphaOffered(true);
    m_ui->m_pwPbFresnelColor->setPurpose(
        tr("Color of the Fresnel zones", "MESS_PURPOSE_FRESNEL_COLOR"));
    offerFirstRun();
    vlt::tables::narrowSpinBoxes(this);
    vlt::tables::showWholeTexts(m_ui->m_pwCbLinkStyle);
    remember({{QStringLiteral("LinkStyle"), m_ui->m_pwCbLinkStyle},
              {QStringLiteral("LinkWidth"), m_ui->m_pwSbLinkWidth},
              {QStringLiteral("LinkColor"), m_ui->m_pwPbLinkColor, QColor::HexArgb},
              {QStringLiteral("ColorByClearance"), m_ui->m_pwChbColorByClearance},
              {QStringLiteral("ShowFresnel"), m_ui->m_pwGbFresnel},
              {QStringLiteral("FresnelZone"), m_ui->m_pwSbFresnelZone},
              {QStringLiteral("FresnelShare"), m_ui->m_pwSbFresnelShare},
              {QStringLiteral("FresnelColor"), m_ui->m_pwPbFresnelColor, QColor::HexArgb},
              {QStringLiteral("FresnelTransparency"), m_ui->m_pwSlFresnelTransparency},
              {QStringLiteral("KFactor"), m_ui->m_pwSbKFactor}});
    connectWidgets();
}

VltLinkProperties::~VltLinkProperties() = default;

void VltLinkProperties::offerFirstRun()
{
    namespace query = vlt::contract::query;
    vlt::wizard::offer(m_ui->m_pwSbLinkWidth, query::LinkWidthPixelsOrM);
    vlt::wizard::offer(m_ui->m_pwSbFresnelZone, query::FresnelZoneNumber);
    vlt::wizard::offer(m_ui->m_pwSbFresnelShare, query::FresnelSharePercent);
    vlt::wizard::offer(m_ui->m_pwSlFresnelTransparency, query::FresnelTransparencyPercent);
    vlt::wizard::offer(m_ui->m_pwSbKFactor, query::KFactorNumber);
    const LinkRepresentation firstRun;
    m_ui->m_pwCbLinkStyle->setCurrentIndex(static_cast<int>(firstRun.style));
    m_ui->m_pwPbLinkColor->setColor(firstRun.color);
    m_ui->m_pwChbColorByClearance->setChecked(firstRun.colorByClearance);
    m_ui->m_pwGbFresnel->setChecked(firstRun.showFresnel);
    m_ui->m_pwPbFresnelColor->setColor(firstRun.fresnelColor);
    showWidthUnit();
    showTransparency(firstRun.fresnelTransparencyPercent);
}

void VltLinkProperties::connectWidgets()
{
    connect(m_ui->m_pwCbLinkStyle, &QComboBox::currentIndexChanged, this,
            &VltLinkProperties::showWidthUnit);
    connect(m_ui->m_pwSlFresnelTransparency, &QSlider::valueChanged, this,
            &VltLinkProperties::showTransparency);
    vlt::tables::announceChanges(this);
    connect(m_ui->m_pwSlFresnelTransparency, &QSlider::valueChanged, this,
            &VltLinkProperties::parameterChanged);
    connect(m_ui->m_pwGbFresnel, &QGroupBox::toggled, this, &VltLinkProperties::parameterChanged);
    connect(m_ui->m_pwChbColorByClearance, &QCheckBox::toggled, this,
            &VltLinkProperties::parameterChanged);
    for (const ColorButton *button : {m_ui->m_pwPbLinkColor, m_ui->m_pwPbFresnelColor})
        connect(button, &ColorButton::colorChanged, this, &VltLinkProperties::parameterChanged);
    vlt::wizard::guardAgainstStrayWheel(this);
}

void VltLinkProperties::showWidthUnit()
{
    const bool isInPixels = representation().style == LinkStyle::Line;
    m_ui->m_pwSbLinkWidth->setSuffix(isInPixels ? tr(" px", "MESS_PIXELS") : QStringLiteral(" m"));
}

void VltLinkProperties::showTransparency(int percent)
{
    m_ui->m_pwLblFresnelTransparencyValue->setText(QStringLiteral("%1 %").arg(percent));
}

void VltLinkProperties::setStacked(bool stacked)
{
    const auto direction = stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    m_ui->m_ptHbGroups->setDirection(direction);
}

LinkRepresentation VltLinkProperties::representation() const
{
    LinkRepresentation values;
    values.style = static_cast<LinkStyle>(m_ui->m_pwCbLinkStyle->currentIndex());
    values.width = m_ui->m_pwSbLinkWidth->value();
    values.color = m_ui->m_pwPbLinkColor->color();
    values.colorByClearance = m_ui->m_pwChbColorByClearance->isChecked();
    values.showFresnel = m_ui->m_pwGbFresnel->isChecked();
    values.fresnelZone = m_ui->m_pwSbFresnelZone->value();
    values.fresnelSharePercent = m_ui->m_pwSbFresnelShare->value();
    values.fresnelColor = m_ui->m_pwPbFresnelColor->color();
    values.fresnelTransparencyPercent = m_ui->m_pwSlFresnelTransparency->value();
    values.kFactor = m_ui->m_pwSbKFactor->value();
    return values;
}
