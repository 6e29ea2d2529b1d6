#include "buildings/ui/VltHeightPanel.h"

#include "ui_HeightPanel.h"

#include "buildings/HeightGuess.h"
#include "language/VltLanguageManager.h"
#include "wizard/base/OfferedNumber.h"

using namespace vlt;
using contract::BaseRule;
using contract::HeightReference;
using contract::HeightUnit;

VltHeightPanel::VltHeightPanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::HeightPanel>())
{
    m_ui->setupUi(this);
    wizard::offer(m_ui->m_pwSbFactor, contract::HeightFactor);
    wizard::offer(m_ui->m_pwSbLevel, contract::LevelHeightM);
    m_ui->m_pwSbDefault->setRange(0, contract::DefaultHeightM.maximum); // 0: leave out
    offer(nullptr);
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
