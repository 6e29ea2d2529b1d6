#include "links/ui/VltLinkProperties.h"

#include "platform/Settings.h"
#include "tables/ui/PanelParts.h"
#include "ui_LinkProperties.h"
#include "wizard/base/WheelGuard.h"

#include <QSettings>

#include <functional>
#include <vector>

using vlt::links::LinkRepresentation;
using vlt::links::LinkStyle;

namespace {

/// A remembered value: its key and how it is carried to and from the settings. What does not read
/// as a value of the range leaves the representation as it is.
struct Remembered
{
    QString key;
    std::function<void(LinkRepresentation &, const QVariant &)> read;
    std::function<QVariant(const LinkRepresentation &)> write;
};

template<typename Number>
Remembered remembered(const char *key, Number LinkRepresentation::*member,
                      const vlt::sites::Limits &limits)
{
    return {QString::fromLatin1(key),
            [member, limits](LinkRepresentation &to, const QVariant &value) {
                bool isNumber = false;
                const double number = value.toDouble(&isNumber);
                if (isNumber && number >= limits.least && number <= limits.most)
                    to.*member = static_cast<Number>(number);
            },
            [member](const LinkRepresentation &from) { return QVariant(from.*member); }};
}

Remembered remembered(const char *key, bool LinkRepresentation::*member)
{
    return {QString::fromLatin1(key),
            [member](LinkRepresentation &to, const QVariant &value) {
                const QString text = value.toString();
                for (const bool known : {false, true}) {
                    if (text == QVariant(known).toString())
                        to.*member = known;
                }
            },
            [member](const LinkRepresentation &from) { return QVariant(from.*member); }};
}

Remembered remembered(const char *key, QColor LinkRepresentation::*member)
{
    return {QString::fromLatin1(key),
            [member](LinkRepresentation &to, const QVariant &value) {
                if (const QColor color = QColor::fromString(value.toString()); color.isValid())
                    to.*member = color;
            },
            [member](const LinkRepresentation &from) {
                return QVariant((from.*member).name(QColor::HexArgb));
            }};
}

Remembered rememberedStyle()
{
    return {
        QStringLiteral("LinkStyle"),
        [](LinkRepresentation &to, const QVariant &value) {
            for (const LinkStyle style : {LinkStyle::Line, LinkStyle::Tube, LinkStyle::Billboard}) {
                if (value.toString() == linkStyleText(style))
                    to.style = style;
            }
        },
        [](const LinkRepresentation &from) { return QVariant(linkStyleText(from.style)); }};
}

const std::vector<Remembered> &rememberedValues()
{
    using namespace vlt::links;
    static const std::vector<Remembered> values = {
        rememberedStyle(),
        remembered("LinkWidth", &LinkRepresentation::width, LinkWidthLimits),
        remembered("LinkColor", &LinkRepresentation::color),
        remembered("ColorByClearance", &LinkRepresentation::colorByClearance),
        remembered("ShowFresnel", &LinkRepresentation::showFresnel),
        remembered("FresnelZone", &LinkRepresentation::fresnelZone, FresnelZoneLimits),
        remembered("FresnelShare", &LinkRepresentation::fresnelShare, FresnelShareLimits),
        remembered("FresnelColor", &LinkRepresentation::fresnelColor),
        remembered("FresnelTransparency", &LinkRepresentation::fresnelTransparency,
                   FresnelTransparencyLimits),
        remembered("KFactor", &LinkRepresentation::kFactor, KFactorLimits),
    };
    return values;
}

QString keyOf(const QString &prefix, const Remembered &value)
{
    return prefix + QLatin1Char('/') + value.key;
}

template<typename Box>
void limit(Box *box, const vlt::sites::Limits &limits)
{
    using Value = decltype(box->value());
    box->setRange(static_cast<Value>(limits.least), static_cast<Value>(limits.most));
}

} // namespace

VltLinkProperties::VltLinkProperties(QWidget *parent)
    : VltParameterPanel(parent)
    , m_ui(std::make_unique<Ui::LinkProperties>())
{
    m_ui->setupUi(this);
    m_ui->m_pwCbLinkStyle->addItem(QIcon(QStringLiteral(":/icons/link-line.png")),
                                   tr("Line", "MESS_STYLE_LINE"));
    m_ui->m_pwCbLinkStyle->addItem(QIcon(QStringLiteral(":/icons/link-tube.png")),
                                   tr("Tube", "MESS_STYLE_TUBE"));
    m_ui->m_pwCbLinkStyle->addItem(QIcon(QStringLiteral(":/icons/link-band.png")),
                                   tr("Band", "MESS_STYLE_BAND"));
    m_ui->m_pwPbLinkColor->setPurpose(tr("Color of the links", "MESS_PURPOSE_LINK_COLOR"));
    m_ui->m_pwPbLinkColor->setAlphaOffered(true);
    m_ui->m_pwPbFresnelColor->setPurpose(
        tr("Color of the Fresnel zones", "MESS_PURPOSE_FRESNEL_COLOR"));
    limitValues();
    vlt::tables::narrowSpinBoxes(this);
    vlt::tables::showWholeTexts(m_ui->m_pwCbLinkStyle);
    setValues(LinkRepresentation());
    connectWidgets();
}

VltLinkProperties::~VltLinkProperties() = default;

void VltLinkProperties::limitValues()
{
    limit(m_ui->m_pwSbLinkWidth, vlt::links::LinkWidthLimits);
    limit(m_ui->m_pwSbFresnelZone, vlt::links::FresnelZoneLimits);
    limit(m_ui->m_pwSbFresnelShare, vlt::links::FresnelShareLimits);
    limit(m_ui->m_pwSlFresnelTransparency, vlt::links::FresnelTransparencyLimits);
    limit(m_ui->m_pwSbKFactor, vlt::links::KFactorLimits);
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

void VltLinkProperties::loadSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    LinkRepresentation values;
    for (const Remembered &value : rememberedValues())
        value.read(values, settings->value(keyOf(prefix, value)));
    const bool wereBlocked = blockSignals(true);
    setValues(values);
    blockSignals(wereBlocked);
}

void VltLinkProperties::saveSettings(const QString &prefix)
{
    const auto settings = vlt::platform::wizardSettings();
    const LinkRepresentation values = representation();
    for (const Remembered &value : rememberedValues())
        settings->setValue(keyOf(prefix, value), value.write(values));
}

void VltLinkProperties::setValues(const LinkRepresentation &values)
{
    m_ui->m_pwCbLinkStyle->setCurrentIndex(static_cast<int>(values.style));
    m_ui->m_pwSbLinkWidth->setValue(values.width);
    m_ui->m_pwPbLinkColor->setColor(values.color);
    m_ui->m_pwChbColorByClearance->setChecked(values.colorByClearance);
    m_ui->m_pwGbFresnel->setChecked(values.showFresnel);
    m_ui->m_pwSbFresnelZone->setValue(values.fresnelZone);
    m_ui->m_pwSbFresnelShare->setValue(values.fresnelShare);
    m_ui->m_pwPbFresnelColor->setColor(values.fresnelColor);
    m_ui->m_pwSlFresnelTransparency->setValue(values.fresnelTransparency);
    m_ui->m_pwSbKFactor->setValue(values.kFactor);
    showWidthUnit();
    showTransparency(values.fresnelTransparency);
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
    values.fresnelShare = m_ui->m_pwSbFresnelShare->value();
    values.fresnelColor = m_ui->m_pwPbFresnelColor->color();
    values.fresnelTransparency = m_ui->m_pwSlFresnelTransparency->value();
    values.kFactor = m_ui->m_pwSbKFactor->value();
    return values;
}
