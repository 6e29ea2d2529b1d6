#include "srs/ui/dialogToEditAlias.h"

#include "geodata/SrsDefinition.h"
#include "srs/UserDefinedSrsList.h"
#include "ui_dialogToEditAlias.h"
#include "wizard/base/Messages.h"

#include <QPushButton>

#include <algorithm>

using vlt::srs::SrsEntry;

namespace {

constexpr int FieldWidth = 65; ///< in average letters
constexpr int DefinitionLines = 6;

bool isSameAlias(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

dialogToEditAlias::dialogToEditAlias(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::dialogToEditAlias>())
{
    m_ui->setupUi(this);
    m_ui->m_pwBbButtons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel", "MESS_CANCEL"));
    m_ui->m_pwLeAlias->setMinimumWidth(FieldWidth * fontMetrics().averageCharWidth());
    m_ui->m_pwTeDefinition->setMinimumHeight(DefinitionLines * fontMetrics().lineSpacing());
    for (QWidget *widget : {static_cast<QWidget *>(m_ui->m_pwLblDefinition),
                            static_cast<QWidget *>(m_ui->m_pwTeDefinition),
                            static_cast<QWidget *>(m_ui->m_pwLblHint)})
        widget->hide();
    connect(m_ui->m_pwLeAlias, &QLineEdit::textChanged, this, &dialogToEditAlias::validate);
    connect(m_ui->m_pwTeDefinition, &QPlainTextEdit::textChanged, this,
            &dialogToEditAlias::validate);
    validate();
}

dialogToEditAlias::~dialogToEditAlias() = default;

void dialogToEditAlias::editSystem(const SrsEntry &entry)
{
    m_asksDefinition = true;
    m_ownAlias = entry.alias;
    m_ui->m_pwLblDefinition->show();
    m_ui->m_pwTeDefinition->show();
    m_ui->m_pwLblHint->show();
    m_ui->m_pwLeAlias->setText(entry.alias);
    m_ui->m_pwLeAlias->selectAll();
    m_ui->m_pwTeDefinition->setPlainText(entry.code);
}

QString dialogToEditAlias::alias() const
{
    return m_ui->m_pwLeAlias->text().trimmed();
}

QString dialogToEditAlias::definition() const
{
    return m_ui->m_pwTeDefinition->toPlainText().simplified();
}

void dialogToEditAlias::validate()
{
    const QString text = definition();
    const std::optional<vlt::Error> refusal =
        m_asksDefinition ? vlt::geodata::definitionRefusal(text) : std::nullopt;
    m_ui->m_pwLblHint->setText(
        !refusal || text.isEmpty()
            ? tr("A code such as EPSG:2154, a PROJ text or WKT", "MESS_SRS_DEFINITION_TIP")
            : vlt::messages::textOf(*refusal));
    m_ui->m_pwBbButtons->button(QDialogButtonBox::Ok)->setEnabled(!refusal && !alias().isEmpty());
}

bool dialogToEditAlias::isAliasTaken() const
{
    if (isSameAlias(alias(), m_ownAlias))
        return false;
    const vlt::srs::UserDefinedSrsList list;
    return std::any_of(list.begin(), list.end(),
                       [this](const SrsEntry &entry) { return isSameAlias(entry.alias, alias()); });
}

void dialogToEditAlias::accept()
{
    if (!isAliasTaken()) {
        QDialog::accept();
        return;
    }
    vlt::messages::critical(
        this, {QStringLiteral("MESS_PROJ_ALIAS_EXIST"),
               QStringLiteral(" this alias is already exists. Please enter another alias"),
               {}});
    m_ui->m_pwLeAlias->selectAll();
    m_ui->m_pwLeAlias->setFocus();
}
