#include "srs/ui/SrsDetails.h"

#include "srs/ui/SrsTableModel.h"
#include "text/RichText.h"
#include "ui_SrsDetails.h"

#include <QFontDatabase>
#include <QLocale>

namespace vlt::srs {

namespace {

constexpr int DefinitionLines = 11;

/// Maximum length of a text; areas of use may list very many countries.
constexpr int MaxTextSize = 160;

void showFact(QLabel *title, QLabel *fact, const QString &text)
{
    const bool isLong = text.size() > MaxTextSize;
    fact->setText(isLong ? text.left(MaxTextSize) + QChar(0x2026) : text);
    fact->setToolTip(isLong ? vlt::text::asRichText(text) : QString());
    title->setHidden(text.isEmpty());
    fact->setHidden(text.isEmpty());
}

QString kindOf(const geodata::SrsRecord &system)
{
    const QString kind = SrsTableModel::kindText(system.kind);
    return system.projectionMethod.isEmpty() ? kind
                                             : kind + QLatin1String(", ") + system.projectionMethod;
}

/// A number in the format of the interface's language.
QString degrees(double value)
{
    return QLocale().toString(value, 'f', 2);
}

} // namespace

SrsDetails::SrsDetails(QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::SrsDetails>())
{
    m_ui->setupUi(this);
    m_ui->m_pwTeDefinition->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const int line = m_ui->m_pwTeDefinition->fontMetrics().lineSpacing();
    m_ui->m_pwTeDefinition->setFixedHeight(DefinitionLines * line);
}

SrsDetails::~SrsDetails() = default;

void SrsDetails::describe(const SrsEntry &entry, const geodata::SrsRecord *system)
{
    showFact(m_ui->m_pwLblNameTitle, m_ui->m_pwLblName,
             entry.name.isEmpty() ? entry.alias : entry.name);
    showFact(m_ui->m_pwLblCodeTitle, m_ui->m_pwLblCode, entry.code.simplified());
    showFact(m_ui->m_pwLblKindTitle, m_ui->m_pwLblKind, system ? kindOf(*system) : QString());
    showFact(m_ui->m_pwLblAreaTitle, m_ui->m_pwLblArea, system ? system->area : QString());
    showFact(m_ui->m_pwLblExtentTitle, m_ui->m_pwLblExtent,
             system && system->bounds
                 ? tr("longitude %1° to %2°, latitude %3° to %4°", "MESS_SRS_EXTENT")
                       .arg(degrees(system->bounds->west), degrees(system->bounds->east),
                            degrees(system->bounds->south), degrees(system->bounds->north))
                 : QString());
    m_ui->m_pwTeDefinition->setPlainText(geodata::srsDefinitionText(entry.code));
}

void SrsDetails::clear()
{
    describe({}, nullptr);
}

} // namespace vlt::srs
