#include "buildings/ui/VltHeightPanel.h"

#include "ui_HeightPanel.h"

#include "buildings/HeightGuess.h"
#include "language/VltLanguageManager.h"
#include "wizard/base/OfferedNumber.h"

using namespace vlt;
using contract::BaseRule;
using contract::HeightReference;
using contract::HeightUnit;

namespace {

constexpr int HalfLightness = 128;

} // namespace

VltHeightPanel::VltHeightPanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::HeightPanel>())
{
    m_ui->setupUi(this);
    wizard::offer(m_ui->m_pwSbFactor, contract::HeightFactor);
    wizard::offer(m_ui->m_pwSbLevel, contract::LevelHeightM);
    m_ui->m_pwSbDefault->setRange(0, contract::DefaultHeightM.maximum); // 0: leave out
    offer(nullptr);
    showCounts({}, false);
    showAdvice({});
    connectWidgets();
}

VltHeightPanel::~VltHeightPanel() = default;

void VltHeightPanel::connectWidgets()
{
    for (const QComboBox *combo : findChildren<QComboBox *>())
        connect(combo, &QComboBox::currentIndexChanged, this, &VltHeightPanel::changed);
    for (const QDoubleSpinBox *box : findChildren<QDoubleSpinBox *>())
        connect(box, &QDoubleSpinBox::valueChanged, this, &VltHeightPanel::changed);
    connect(m_ui->m_pwLeWhere, &QLineEdit::textChanged, this, &VltHeightPanel::changed);
    connect(m_ui->m_pwCbElse, &QComboBox::currentIndexChanged, this, [this] {
        const HeightUnit unit = buildings::unitFromName(m_ui->m_pwCbElse->currentData().toString());
        m_ui->m_pwCbElseUnit->setCurrentIndex(static_cast<int>(unit));
    });
    connect(this, &VltHeightPanel::changed, this, &VltHeightPanel::enableFields);
    connect(m_ui->m_pwPbAdvice, &QPushButton::clicked, this, &VltHeightPanel::followAdvice);
}

void VltHeightPanel::enableFields()
{
    m_ui->m_pwCbElseUnit->setEnabled(m_ui->m_pwCbElse->currentIndex() > 0);
    m_ui->m_pwCbBaseField->setEnabled(m_ui->m_pwCbBase->currentIndex() ==
                                      static_cast<int>(BaseRule::Field));
}

void VltHeightPanel::offer(const geodata::PolygonLayer *layer)
{
    const QStringList fields = layer ? buildings::possibleHeightFields(*layer) : QStringList();
    for (QComboBox *combo : {m_ui->m_pwCbElse, m_ui->m_pwCbBaseField, m_ui->m_pwCbBottom}) {
        combo->clear();
        combo->addItem(dico_label("MESS_NO_FIELD", "none"), QString());
        for (const QString &field : fields)
            combo->addItem(field, field);
    }
    for (QComboBox *combo :
         {m_ui->m_pwCbUnit, m_ui->m_pwCbElseUnit, m_ui->m_pwCbReference, m_ui->m_pwCbBase})
        combo->setCurrentIndex(0);
    m_ui->m_pwSbFactor->setValue(contract::HeightFactor.firstRun);
    m_ui->m_pwSbLevel->setValue(contract::LevelHeightM.firstRun);
    m_ui->m_pwSbDefault->setValue(0);
    m_ui->m_pwLeWhere->clear();
    enableFields();
}

void VltHeightPanel::setTabOrderBetween(QWidget *before, QWidget *after)
{
    QWidget *previous = before;
    for (QWidget *next : std::initializer_list<QWidget *>{
             m_ui->m_pwCbUnit, m_ui->m_pwSbFactor, m_ui->m_pwSbLevel, m_ui->m_pwCbElse,
             m_ui->m_pwCbElseUnit, m_ui->m_pwSbDefault, m_ui->m_pwCbReference, m_ui->m_pwCbBase,
             m_ui->m_pwCbBaseField, m_ui->m_pwCbBottom, m_ui->m_pwLeWhere, m_ui->m_pwPbAdvice,
             after}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void VltHeightPanel::suggestUnit(const QString &heightField)
{
    m_ui->m_pwCbUnit->setCurrentIndex(static_cast<int>(buildings::unitFromName(heightField)));
}

contract::BuildingHeights VltHeightPanel::heights() const
{
    const auto field = [](const QComboBox *combo) {
        return combo->currentData().toString().toStdString();
    };
    contract::BuildingHeights heights;
    heights.unit = static_cast<HeightUnit>(m_ui->m_pwCbUnit->currentIndex());
    heights.factor = m_ui->m_pwSbFactor->value();
    heights.levelHeightM = m_ui->m_pwSbLevel->value();
    heights.elseField = field(m_ui->m_pwCbElse);
    if (!heights.elseField.empty())
        heights.elseUnit = static_cast<HeightUnit>(m_ui->m_pwCbElseUnit->currentIndex());
    if (m_ui->m_pwSbDefault->value() > 0)
        heights.defaultM = m_ui->m_pwSbDefault->value();
    heights.reference = static_cast<HeightReference>(m_ui->m_pwCbReference->currentIndex());
    heights.base = static_cast<BaseRule>(m_ui->m_pwCbBase->currentIndex());
    heights.bottomField = field(m_ui->m_pwCbBottom);
    if (heights.base == BaseRule::Field)
        heights.baseField = field(m_ui->m_pwCbBaseField);
    return heights;
}

QString VltHeightPanel::where() const
{
    return m_ui->m_pwLeWhere->text().trimmed();
}

void VltHeightPanel::showCounts(const QString &text, bool isWrong)
{
    m_ui->m_pwLblCounts->setText(text);
    m_ui->m_pwLblCounts->setVisible(!text.isEmpty());
    const bool isDark = palette().color(QPalette::Window).lightness() < HalfLightness;
    m_ui->m_pwLblCounts->setStyleSheet(
        isWrong ? QLatin1String(isDark ? "color: #ff8076" : "color: #b21818") : QLatin1String());
}

void VltHeightPanel::showAdvice(const std::optional<buildings::HeightAdvice> &advice)
{
    m_ui->m_pwLblAdvice->setVisible(advice.has_value());
    m_ui->m_pwPbAdvice->setVisible(advice.has_value());
    if (!advice)
        return;
    m_advisedField = advice->elseField;
    m_ui->m_pwLblAdvice->setText(advice->text);
    m_ui->m_pwPbAdvice->setText(
        m_advisedField.isEmpty() ? dico_label("MESS_USE_SEA", "Values above sea")
                                 : dico_label("MESS_USE_FIELD", "Use \"%1\"").arg(m_advisedField));
    m_ui->m_pwPbAdvice->setAccessibleDescription(advice->text);
}

void VltHeightPanel::followAdvice()
{
    const bool isSea = m_advisedField.isEmpty();
    QComboBox *choice = isSea ? m_ui->m_pwCbReference : m_ui->m_pwCbElse;
    choice->setFocus(); // else hiding the button moves it to the terrain
    showAdvice({});
    choice->setCurrentIndex(isSea ? static_cast<int>(HeightReference::Sea)
                                  : choice->findData(m_advisedField));
}
