#include "srs/ui/VltSrsChooser.h"

#include "geodata/SrsDefinition.h"
#include "srs/DefaultSrsList.h"
#include "srs/UserDefinedSrsList.h"
#include "srs/ui/dialogToEditAlias.h"
#include "srs/ui/dialogVltSrsChooser.h"
#include "ui_VltSrsChooser.h"
#include "wizard/base/Messages.h"

#include <QColor>
#include <QIcon>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

using vlt::srs::SrsEntry;

namespace {

constexpr QColor LastUsedColor(255, 255, 255);
constexpr QColor DefaultColor(208, 208, 208);
constexpr QColor OtherColor(160, 160, 160);
constexpr QColor SelectedFromOutsideColor(255, 208, 208);
constexpr QColor RowTextColor(0, 0, 0); // the row colours are light in every palette

} // namespace

VltSrsChooser::VltSrsChooser(QWidget *parent, const QString &labelText, bool withDefaults,
                             bool withOther)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::WidgetVltSrsChooser>())
    , m_parentWidget(parent)
    , m_withDefaults(withDefaults)
    , m_withOther(withOther)
{
    m_ui->setupUi(this);
    m_ui->m_pLSrsLabel->setText(labelText);
    m_ui->m_pCBSrs->setAccessibleName(labelText);
    m_ui->m_pPBResetSrs->setAccessibleDescription(labelText);
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_ui->m_pLHintIcon->setPixmap(QIcon(QStringLiteral(":/icons/warning.png")).pixmap(iconSize));
    clearHint();
    setFocusProxy(m_ui->m_pCBSrs);

    connect(m_ui->m_pCBSrs, &QComboBox::activated, this, &VltSrsChooser::slot_onSelectSrs);
    connect(m_ui->m_pPBResetSrs, &QPushButton::clicked, this, &VltSrsChooser::slot_resetSrs);
}

VltSrsChooser::~VltSrsChooser() = default;

void VltSrsChooser::populate()
{
    if (m_withDefaults)
        m_shown.fill(m_lastUsed, vlt::srs::DefaultSrsList());
    else
        m_shown.fill(m_lastUsed);
    if (m_shown.count() > 0)
        setReference(m_shown.at(0));

    SrsComboBox *combo = m_ui->m_pCBSrs;
    combo->clear();
    for (int row = 0; row < m_shown.count(); ++row) {
        combo->addItem(rowText(m_shown.at(row)));
        describeRow(row);
        colorRow(row, row < m_lastUsed.count() ? LastUsedColor : DefaultColor);
    }
    if (m_withOther) {
        const int row = combo->count();
        combo->addItem(tr("Other...", "MESS_AUTRE..."));
        colorRow(row, OtherColor);
    }

    // if "Other..." were the current row, it could not be chosen
    if (m_withOther && m_shown.count() == 0)
        enterUndefinedState(OnReturn::Validates);
    else
        selectRow(0);
}

std::optional<SrsEntry> VltSrsChooser::currentEntry() const
{
    const int row = m_ui->m_pCBSrs->currentIndex();
    return m_shown.isIndex(row) ? std::optional(m_shown.at(row)) : std::nullopt;
}

QString VltSrsChooser::currentCode() const
{
    const std::optional<SrsEntry> entry = currentEntry();
    return entry ? entry->code : QString();
}

void VltSrsChooser::setSrsText(const QString &text)
{
    if (!text.isEmpty()) {
        selectRow(findRow(text, Qt::MatchContains));
        Q_EMIT SrsSelected(currentCode());
        return;
    }
    selectRow(-1);
    Q_EMIT SrsSelected(currentCode());
    enterUndefinedState(OnReturn::HasNoEffect);
}

void VltSrsChooser::setSrsCode(const QString &code)
{
    if (code.isEmpty()) {
        selectEntry(std::nullopt);
        return;
    }
    const int listed = m_shown.indexOfCode(code);
    SrsEntry entry;
    entry.code = code;
    selectEntry(listed >= 0 ? m_shown.at(listed) : entry);
}

void VltSrsChooser::setSystem(const QString &systemText)
{
    const QString code = vlt::geodata::listedCode(systemText);
    const int row = m_shown.indexOfCode(code);
    if (row < 0) {
        setSrsCode(code);
    } else { // not selectEntry(): the texts of other rows may contain the code
        setReference(m_shown.at(row));
        selectRow(row);
        colorRow(row, SelectedFromOutsideColor);
    }
    m_referenceText = systemText;
    m_isAsGiven = !systemText.isEmpty();
}

QString VltSrsChooser::currentSystem() const
{
    return m_isAsGiven ? m_referenceText : currentCode();
}

void VltSrsChooser::selectEntry(const std::optional<SrsEntry> &entry)
{
    setReference(entry.value_or(SrsEntry()));
    if (m_reference.code.isEmpty()) {
        enterUndefinedState(OnReturn::Validates);
        return;
    }
    // the text of a user-defined system does not contain its code; if it is in the list, row 0 is
    // used
    const int row = std::max(findRow(m_reference.code, Qt::MatchContains), 0);
    if (m_shown.indexOfCode(m_reference.code) < 0)
        insertRow(row, m_reference);
    selectRow(row);
    colorRow(row, SelectedFromOutsideColor);
}

void VltSrsChooser::slot_onSelectSrs(int row)
{
    if (row == m_shown.currentIndex())
        return;
    m_ui->m_pCBSrs->setEditable(false);
    if (!m_withOther)
        return;
    if (row == m_ui->m_pCBSrs->count() - 1) {
        chooseFromDialog();
    } else if (m_shown.isIndex(row)) {
        selectRow(row);
        choose(m_shown.at(row));
    }
}

void VltSrsChooser::slot_resetSrs()
{
    m_ui->m_pPBResetSrs->setEnabled(false);
    if (m_reference.code.isEmpty()) {
        enterUndefinedState(OnReturn::Validates);
    } else {
        selectRow(findRow(rowText(m_reference), Qt::MatchExactly | Qt::MatchCaseSensitive));
        m_isAsGiven = m_shown.currentIndex() >= 0 && !m_referenceText.isEmpty();
        m_ui->m_pCBSrs->setFocus();
    }
    Q_EMIT SrsSelected(currentCode());
}

void VltSrsChooser::slot_OnValidateEditedSrs()
{
    if (!m_ui->m_pCBSrs->isEditable()) // the combo box has already selected the row with this text
        return;
    const QString text = m_ui->m_pCBSrs->currentText();
    if (text.isEmpty())
        return;

    const int row = findRow(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0)
        selectRow(row);
    else if (const auto refusal = vlt::geodata::definitionRefusal(text))
        showHint(vlt::messages::textOf(*refusal));
    else if (!addUserDefined(text))
        return;
    Q_EMIT SrsSelected(currentCode());
}

void VltSrsChooser::setReference(const SrsEntry &entry)
{
    m_reference = entry;
    m_referenceText.clear();
}

int VltSrsChooser::findRow(const QString &text, Qt::MatchFlags match) const
{
    return m_ui->m_pCBSrs->findText(text, match);
}

void VltSrsChooser::insertRow(int row, const SrsEntry &entry)
{
    const int index = std::min(row, m_shown.count());
    m_shown.insert(index, entry);
    m_ui->m_pCBSrs->insertItem(index, rowText(entry));
    describeRow(index);
}

void VltSrsChooser::describeRow(int row)
{
    if (m_shown.at(row).isUserDefined)
        m_ui->m_pCBSrs->setItemData(row, m_shown.at(row).code, SrsComboBox::DefinitionRole);
}

void VltSrsChooser::colorRow(int row, const QColor &background)
{
    m_ui->m_pCBSrs->setItemData(row, background, Qt::BackgroundRole);
    m_ui->m_pCBSrs->setItemData(row, RowTextColor, Qt::ForegroundRole);
}

void VltSrsChooser::selectRow(int row)
{
    if (row >= 0)
        m_ui->m_pCBSrs->setEditable(false);
    clearHint();
    m_shown.setCurrentIndex(row);
    m_isAsGiven = false;
    m_ui->m_pCBSrs->setCurrentIndex(row);
}

void VltSrsChooser::enterUndefinedState(OnReturn onReturn)
{
    selectRow(-1);
    SrsComboBox *combo = m_ui->m_pCBSrs;
    combo->setEditable(true);
    combo->lineEdit()->setAcceptDrops(false); // the page accepts dropped files
    combo->setCompleter(nullptr);             // a definition is not to be completed
    combo->setEditText(tr("Undefined", "MESS_NDEF"));
    combo->lineEdit()->setAccessibleName(combo->accessibleName());
    if (onReturn == OnReturn::HasNoEffect) {
        combo->setEditTip(chooseInListText());
        return;
    }
    combo->setEditTip(tr("An EPSG code, a PROJ text or WKT, then Return; \"Other...\" in the list "
                         "opens the search of all systems",
                         "MESS_SRS_TYPE_TIP"));
    combo->lineEdit()->setPlaceholderText(tr("EPSG code, PROJ text or WKT", "MESS_SRS_TYPE_HERE"));
    // the line edit may already be connected
    connect(combo->lineEdit(), &QLineEdit::returnPressed, this,
            &VltSrsChooser::slot_OnValidateEditedSrs, Qt::UniqueConnection);
    connect(combo->lineEdit(), &QLineEdit::textEdited, this, &VltSrsChooser::clearHint,
            Qt::UniqueConnection);
}

/// The hint for a state in which typed texts have no effect.
QString VltSrsChooser::chooseInListText()
{
    return tr("Choose a system in the list; \"Other...\", tab \"User-defined\", accepts a "
              "definition of your own",
              "MESS_SRS_CHOOSE_IN_LIST");
}

/// Shows below the row why there is no result or what to do; hides the line for an empty text.
void VltSrsChooser::showHint(const QString &text)
{
    m_ui->m_pLHint->setText(text);
    m_ui->m_pLHint->setHidden(text.isEmpty());
    m_ui->m_pLHintIcon->setHidden(text.isEmpty());
    m_ui->m_pCBSrs->setAccessibleDescription(text);
}

/// Stores and announces the entry that the user has chosen.
void VltSrsChooser::choose(const SrsEntry &entry)
{
    m_lastUsed.use(entry);
    m_ui->m_pPBResetSrs->setEnabled(true);
    Q_EMIT SrsSelected(currentCode());
}

void VltSrsChooser::chooseFromDialog()
{
    SrsEntry current;
    if (m_shown.isIndex(m_shown.currentIndex()))
        current = m_shown.at(m_shown.currentIndex());
    dialogVltSrsChooser dialog(m_parentWidget, current, m_context);
    dialog.setWindowTitle(m_ui->m_pLSrsLabel->text()); // the role of the system
    std::optional<SrsEntry> chosen;
    if (dialog.exec() == QDialog::Accepted)
        chosen = dialog.chosenEntry();
    m_lastUsed = vlt::srs::LastUsedSrsList(); // the dialog may have removed entries

    if (!chosen) {
        if (m_shown.currentIndex() >= 0) {
            m_ui->m_pCBSrs->setCurrentIndex(m_shown.currentIndex());
        } else {
            enterUndefinedState(OnReturn::HasNoEffect);
            m_ui->m_pPBResetSrs->setEnabled(false);
            showHint(chooseInListText());
        }
        return;
    }

    int row = m_shown.indexOfCode(chosen->code);
    if (row < 0) {
        row = 0;
        insertRow(row, *chosen);
    } else if (chosen->isUserDefined) { // the dialog may have changed its alias
        m_shown.replace(row, *chosen);
        m_ui->m_pCBSrs->setItemText(row, rowText(*chosen));
    }
    selectRow(row);
    choose(m_shown.at(row));
}

/// Asks the user for an alias and stores the definition under it; false if the user cancels.
bool VltSrsChooser::addUserDefined(const QString &definition)
{
    dialogToEditAlias dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return false;

    SrsEntry entry;
    entry.alias = dialog.alias();
    entry.code = definition;
    entry.isUserDefined = true;
    vlt::srs::UserDefinedSrsList().add(entry);
    m_lastUsed.use(entry);
    insertRow(0, entry);
    selectRow(0);
    m_ui->m_pPBResetSrs->setEnabled(true);
    return true;
}
