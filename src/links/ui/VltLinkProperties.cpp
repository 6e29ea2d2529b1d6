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
                      const vlt::contract::Range &range)
{
    return {QString::fromLatin1(key),
            [member, range](LinkRepresentation &to, const QVariant &value) {
                bool isNumber = false;
                const double number = value.toDouble(&isNumber);
                if (isNumber && range.contains(number))
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
                if (value.toString() == vlt::links::linkStyleText(style))
                    to.style = style;
            }
        },
        [](const LinkRepresentation &from) {
            return QVariant(vlt::links::linkStyleText(from.style));
        }};
}

const std::vector<Remembered> &rememberedValues()
{
    using namespace vlt::contract::query;
    static const std::vector<Remembered> values = {
        rememberedStyle(),
        remembered("LinkWidth", &LinkRepresentation::width, LinkWidthPixelsOrM),
        remembered("LinkColor", &LinkRepresentation::color),
        remembered("ColorByClearance", &LinkRepresentation::colorByClearance),
        remembered("ShowFresnel", &LinkRepresentation::showFresnel),
        remembered("FresnelZone", &LinkRepresentation::fresnelZone, FresnelZoneNumber),
        remembered("FresnelShare", &LinkRepresentation::fresnelSharePercent, FresnelSharePercent),
        remembered("FresnelColor", &LinkRepresentation::fresnelColor),
        remembered("FresnelTransparency", &LinkRepresentation::fresnelTransparencyPercent,
                   FresnelTransparencyPercent),
        remembered("KFactor", &LinkRepresentation::kFactor, KFactorNumber),
    };
    return values;
}

QString keyOf(const QString &prefix, const Remembered &value)
{
    return prefix + QLatin1Char('/') + value.key;
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
    offerNumbers();
    vlt::tables::narrowSpinBoxes(this);
    vlt::tables::showWholeTexts(m_ui->m_pwCbLinkStyle);
    setValues(LinkRepresentation());
    connectWidgets();
}

VltLinkProperties::~VltLinkProperties() = default;

void VltLinkProperties::offerNumbers()
{
    namespace query = vlt::contract::query;
    vlt::tables::offer(m_ui->m_pwSbLinkWidth, query::LinkWidthPixelsOrM);
    vlt::tables::offer(m_ui->m_pwSbFresnelZone, query::FresnelZoneNumber);
    vlt::tables::offer(m_ui->m_pwSbFresnelShare, query::FresnelSharePercent);
    vlt::tables::offer(m_ui->m_pwSlFresnelTransparency, query::FresnelTransparencyPercent);
    vlt::tables::offer(m_ui->m_pwSbKFactor, query::KFactorNumber);
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
    m_ui->m_pwSbFresnelShare->setValue(values.fresnelSharePercent);
    m_ui->m_pwPbFresnelColor->setColor(values.fresnelColor);
    m_ui->m_pwSlFresnelTransparency->setValue(values.fresnelTransparencyPercent);
    m_ui->m_pwSbKFactor->setValue(values.kFactor);
    showWidthUnit();
    showTransparency(values.fresnelTransparencyPercent);
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
