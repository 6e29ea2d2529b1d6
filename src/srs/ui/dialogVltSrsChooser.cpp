#include "srs/ui/dialogVltSrsChooser.h"

#include "geodata/SrsDefinition.h"
#include "platform/Settings.h"
#include "srs/DetailLinks.h"
#include "srs/SrsUtilitiesFile.h"
#include "srs/ui/SrsListModel.h"
#include "srs/ui/SrsSearchModel.h"
#include "srs/ui/SrsTable.h"
#include "srs/ui/dialogToEditAlias.h"
#include "ui_dialogVltSrsChooser.h"
#include "wizard/base/Messages.h"

#include <QAction>
#include <QDir>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <array>

using namespace vlt::srs;
using vlt::geodata::SrsKind;

namespace {

const QString GeometryKey = QStringLiteral("SrsDialog/Geometry");
constexpr int FirstWidth = 165; ///< in average letters
constexpr int FirstHeight = 46; ///< in lines

/// Whether a text is a PROJ text or WKT, by characters that search words do not have.
bool isMeantAsDefinition(const QString &text)
{
    return text.contains(u'=') || text.contains(u'[');
}

bool isTyped(const QKeyEvent &event)
{
    return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
           !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

dialogVltSrsChooser::dialogVltSrsChooser(QWidget *parent, const SrsEntry &current,
                                         const SrsContext &context)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::dialogVltSrsChooser>())
    , m_current(current)
{
    m_preferences.first = QList<SrsEntry>(m_lastUsed.begin(), m_lastUsed.end());
    for (const QString &system : context.projectSystems)
        m_preferences.first << SrsEntry{{}, {}, system};
    m_preferences.area = context.area;
    m_preferences.defaults = QList<SrsEntry>(m_default.begin(), m_default.end());

    m_ui->setupUi(this);
    m_ui->m_pwBbButtons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel", "MESS_CANCEL"));
    createTables();
    createKinds();
    createActions();
    connectWidgets();
    restoreSize();
    showLists();

    m_ui->m_pwPbAddTyped->hide();
    m_ui->m_pwLblState->setText(
        tr("Reading the list of coordinate systems...", "MESS_SRS_LOADING"));
    m_loading.setFuture(sharedSrsSearch());
    if (m_loading.isFinished())
        showLoadedSystems();
    selectCurrent();
    showSelection();
    m_ui->m_pwLeSearch->setFocus();
}

dialogVltSrsChooser::~dialogVltSrsChooser() = default;

std::optional<SrsEntry> dialogVltSrsChooser::chosenEntry() const
{
    return m_chosen;
}

void dialogVltSrsChooser::done(int result)
{
    m_chosen = result == QDialog::Accepted ? currentTable()->currentEntry() : std::nullopt;
    vlt::platform::wizardSettings()->setValue(GeometryKey, saveGeometry());
    QDialog::done(result);
}

void dialogVltSrsChooser::createTables()
{
    using Titles = SrsListModel::Titles;
    m_found = new SrsSearchModel(this);
    m_defaultModel = new SrsListModel(Titles::NameAndCode, this);
    m_lastUsedModel = new SrsListModel(Titles::NameAndCode, this);
    m_userDefinedModel = new SrsListModel(Titles::AliasAndDefinition, this);

    const QList<DetailLink> links = loadDetailLinks();
    const std::array<std::pair<SrsTable *, SrsTableModel *>, 4> shown = {
        {{m_ui->m_pwTvFound, m_found},
         {m_ui->m_pwTvDefault, m_defaultModel},
         {m_ui->m_pwTvLastUsed, m_lastUsedModel},
         {m_ui->m_pwTvUserDefined, m_userDefinedModel}}};
    for (const auto &[table, model] : shown) {
        table->setSystems(model);
        table->setDetailLinks(links);
        table->installEventFilter(this);
        connect(table, &SrsTable::selectionMoved, this, &dialogVltSrsChooser::showSelection);
        connect(table, &SrsTable::doubleClicked, this, &dialogVltSrsChooser::accept);
    }
    m_ui->m_pwTvDefault->setEmptyText(
        tr("There are no default systems: the file %1 is missing, cannot be read or lists none",
           "MESS_SRS_NO_DEFAULT")
            .arg(QDir::toNativeSeparators(srsUtilitiesPath())));
    m_ui->m_pwTvLastUsed->setEmptyText(
        tr("No coordinate system has been chosen yet", "MESS_SRS_NO_LAST"));
    m_ui->m_pwTvUserDefined->setEmptyText(
        tr("You have not defined a coordinate system yet", "MESS_SRS_NO_USER"));
    m_ui->m_pwTvUserDefined->hideColumn(SrsTableModel::Kind);
    m_ui->m_pwTvUserDefined->hideColumn(SrsTableModel::Area);
}

void dialogVltSrsChooser::createKinds()
{
    m_ui->m_pwCbKind->addItem(tr("All kinds", "MESS_SRS_ALL_KINDS"));
    for (const SrsKind kind :
         {SrsKind::Projected, SrsKind::Geographic2D, SrsKind::Geographic3D, SrsKind::Compound})
        m_ui->m_pwCbKind->addItem(SrsTableModel::kindText(kind), static_cast<int>(kind));
}

void dialogVltSrsChooser::createActions()
{
    addTableAction(m_ui->m_pwTvLastUsed, m_ui->m_pwPbRemoveLastUsed, QKeySequence::Delete,
                   &dialogVltSrsChooser::removeLastUsed);
    addTableAction(m_ui->m_pwTvUserDefined, m_ui->m_pwPbEditUserDefined, Qt::Key_F2,
                   &dialogVltSrsChooser::editUserDefined);
    addTableAction(m_ui->m_pwTvUserDefined, m_ui->m_pwPbRemoveUserDefined, QKeySequence::Delete,
                   &dialogVltSrsChooser::removeUserDefined);
}

/// Adds the action of a button for the selected row to the context menu of the table, with a
/// shortcut.
void dialogVltSrsChooser::addTableAction(SrsTable *table, QAbstractButton *button,
                                         const QKeySequence &shortcut,
                                         void (dialogVltSrsChooser::*slot)())
{
    auto *action = new QAction(button->text(), table);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    table->addAction(action);
    connect(action, &QAction::triggered, this, slot);
    connect(button, &QAbstractButton::clicked, action, &QAction::trigger);

    const auto follow = [=] {
        action->setEnabled(table->currentRow() >= 0);
        button->setEnabled(action->isEnabled());
    };
    connect(table, &SrsTable::selectionMoved, action, follow);
    follow();
}

void dialogVltSrsChooser::connectWidgets()
{
    connect(&m_loading, &QFutureWatcherBase::finished, this,
            &dialogVltSrsChooser::showLoadedSystems);
    connect(m_ui->m_pwTwTabs, &QTabWidget::currentChanged, this,
            &dialogVltSrsChooser::showSelection);
    connect(m_ui->m_pwLeSearch, &QLineEdit::textChanged, this, &dialogVltSrsChooser::searchText);
    connect(m_ui->m_pwCbKind, &QComboBox::currentIndexChanged, this, &dialogVltSrsChooser::search);
    connect(m_ui->m_pwChbDeprecated, &QCheckBox::toggled, this, &dialogVltSrsChooser::search);
    connect(m_ui->m_pwPbAddUserDefined, &QAbstractButton::clicked, this,
            &dialogVltSrsChooser::addUserDefined);
    connect(m_ui->m_pwPbAddTyped, &QAbstractButton::clicked, this,
            &dialogVltSrsChooser::addTypedDefinition);
    m_ui->m_pwLeSearch->installEventFilter(this);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_ui->m_pwTwTabs->setCurrentWidget(m_ui->m_pwPageSearch);
        m_ui->m_pwLeSearch->setFocus(Qt::ShortcutFocusReason);
    });
}

void dialogVltSrsChooser::restoreSize()
{
    const QByteArray geometry = vlt::platform::wizardSettings()->value(GeometryKey).toByteArray();
    if (restoreGeometry(geometry))
        return;
    const QSize wanted(FirstWidth * fontMetrics().averageCharWidth(),
                       FirstHeight * fontMetrics().lineSpacing());
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
}

SrsTable *dialogVltSrsChooser::currentTable() const
{
    return m_ui->m_pwTwTabs->currentWidget()->findChild<SrsTable *>();
}

void dialogVltSrsChooser::showLoadedSystems()
{
    const SharedSrsSearch systems = m_loading.result();
    if (!systems) {
        m_ui->m_pwLblState->setText(
            tr("The list of coordinate systems cannot be read", "MESS_SRS_NO_LIST"));
        return;
    }
    m_found->setSearch(systems);
    for (SrsListModel *model : {m_defaultModel, m_lastUsedModel, m_userDefinedModel})
        model->setSearch(systems);
    searchText();
    showSelection();
}

/// Searches and shows the results. The selected system stays selected if it is among them.
void dialogVltSrsChooser::search()
{
    const std::optional<SrsEntry> selected = m_ui->m_pwTvFound->currentEntry();
    SrsQuery query;
    query.text = m_ui->m_pwLeSearch->text();
    if (const QVariant kind = m_ui->m_pwCbKind->currentData(); kind.isValid())
        query.kind = static_cast<SrsKind>(kind.toInt());
    query.withDeprecated = m_ui->m_pwChbDeprecated->isChecked();
    if (isMeantAsDefinition(query.text))
        m_found->clear();
    else
        m_found->find(query, m_preferences);
    showState();
    if (selected)
        m_ui->m_pwTvFound->selectRow(m_found->rowOfCode(selected->code));
}

/// Shows the number of results or, if there are none, what to do.
void dialogVltSrsChooser::showState()
{
    const QString text = m_ui->m_pwLeSearch->text();
    m_ui->m_pwPbAddTyped->hide();
    if (isMeantAsDefinition(text)) {
        const std::optional<vlt::Error> refusal = vlt::geodata::definitionRefusal(text);
        m_ui->m_pwPbAddTyped->setVisible(!refusal);
        m_ui->m_pwLblState->setText(
            refusal ? vlt::messages::textOf(*refusal)
                    : tr("This text defines a coordinate system", "MESS_SRS_IS_DEFINITION"));
        return;
    }
    if (!m_loading.isFinished() || !m_loading.result())
        return;
    const int count = m_found->rowCount();
    QString state = tr("Systems found: %1", "MESS_SRS_FOUND").arg(count);
    if (count == 0)
        state = tr("No system matches", "MESS_SRS_NONE_FOUND");
    else if (!m_found->nearText().isEmpty())
        state = tr("No system matches; found for \"%1\": %2", "MESS_SRS_FOUND_NEAR")
                    .arg(m_found->nearText().toUpper(), QString::number(count));
    else if (m_preferences.area && !SrsSearch::hasWords(text))
        state = tr("Systems: %1; systems whose area of use contains your data come first",
                   "MESS_SRS_FOUND_AREA")
                    .arg(count);
    m_ui->m_pwLblState->setText(state);
}

/// Selects the best match of a text, so that Return chooses it; without a text, the initial system.
void dialogVltSrsChooser::searchText()
{
    m_ui->m_pwTvFound->clearSelection();
    search();
    const QString text = m_ui->m_pwLeSearch->text();
    if (SrsSearch::hasWords(text))
        m_ui->m_pwTvFound->selectRow(0);
    else if (text.trimmed().isEmpty())
        m_ui->m_pwTvFound->selectRow(m_found->rowOfCode(vlt::geodata::listedCode(m_current.code)));
}

/// If the search does not know the initial system, it may be a user-defined one.
void dialogVltSrsChooser::selectCurrent()
{
    const int row = m_userDefined.indexOfCode(m_current.code);
    if (row < 0 || !m_current.isUserDefined)
        return;
    m_ui->m_pwTwTabs->setCurrentWidget(m_ui->m_pwPageUserDefined);
    m_ui->m_pwTvUserDefined->selectRow(row);
}

void dialogVltSrsChooser::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    SrsTable *table = currentTable(); // its size is not known before
    if (table->currentIndex().isValid())
        table->scrollTo(table->currentIndex(), QAbstractItemView::PositionAtCenter);
}

bool dialogVltSrsChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);

    const auto &key = static_cast<const QKeyEvent &>(*event);
    SrsTable *found = m_ui->m_pwTvFound;
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (watched == m_ui->m_pwLeSearch && isReturn && m_ui->m_pwPbAddTyped->isVisible()) {
        addTypedDefinition();
        return true;
    }
    if (watched == m_ui->m_pwLeSearch && key.key() == Qt::Key_Down && m_found->rowCount() > 0) {
        if (found->currentRow() < 0)
            found->selectRow(0);
        found->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (watched == found && (isTyped(key) || key.key() == Qt::Key_Backspace)) {
        m_ui->m_pwLeSearch->setFocus(Qt::OtherFocusReason);
        QCoreApplication::sendEvent(m_ui->m_pwLeSearch, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void dialogVltSrsChooser::showSelection()
{
    const SrsTable *table = currentTable();
    const int row = table->currentRow();
    m_ui->m_pwBbButtons->button(QDialogButtonBox::Ok)->setEnabled(row >= 0);
    if (row < 0)
        m_ui->m_pwDetails->clear();
    else
        m_ui->m_pwDetails->describe(table->systems()->entryAt(row),
                                    table->systems()->systemAt(row));
}

void dialogVltSrsChooser::showLists()
{
    m_defaultModel->setEntries(m_default);
    m_lastUsedModel->setEntries(m_lastUsed);
    m_userDefinedModel->setEntries(m_userDefined);
}

void dialogVltSrsChooser::addUserDefined()
{
    define({});
}

void dialogVltSrsChooser::addTypedDefinition()
{
    define({{}, {}, m_ui->m_pwLeSearch->text().simplified(), true});
}

/// Asks for a user-defined system and selects it.
void dialogVltSrsChooser::define(const SrsEntry &start)
{
    dialogToEditAlias dialog(this);
    dialog.editSystem(start);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_userDefined.add({dialog.alias(), {}, dialog.definition(), true});
    showLists();
    m_ui->m_pwTwTabs->setCurrentWidget(m_ui->m_pwPageUserDefined);
    m_ui->m_pwTvUserDefined->selectRow(0);
    m_ui->m_pwTvUserDefined->setFocus();
}

void dialogVltSrsChooser::editUserDefined()
{
    const int row = m_ui->m_pwTvUserDefined->currentRow();
    const SrsEntry before = m_userDefined.at(row);
    dialogToEditAlias dialog(this);
    dialog.editSystem(before);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const SrsEntry after{dialog.alias(), {}, dialog.definition(), true};
    m_userDefined.replaceAt(row, after);
    if (const int used = lastUsedIndex(before); used >= 0)
        m_lastUsed.replaceAt(used, after);
    showLists();
    m_ui->m_pwTvUserDefined->selectRow(row);
}

void dialogVltSrsChooser::removeUserDefined()
{
    const int row = m_ui->m_pwTvUserDefined->currentRow();
    const SrsEntry entry = m_userDefined.at(row);
    if (!vlt::messages::confirmed(
            this, tr("Remove %1 from the user-defined coordinate systems?", "MESS_SRS_ASK_REMOVE")
                      .arg(entry.alias)))
        return;
    m_userDefined.removeAt(row);
    m_lastUsed.removeAt(lastUsedIndex(entry));
    showLists();
    m_ui->m_pwTvUserDefined->selectRow(std::min(row, m_userDefined.count() - 1));
}

void dialogVltSrsChooser::removeLastUsed()
{
    const int row = m_ui->m_pwTvLastUsed->currentRow();
    m_lastUsed.removeAt(row);
    showLists();
    m_ui->m_pwTvLastUsed->selectRow(std::min(row, m_lastUsed.count() - 1));
}

/// Index of a user-defined system among the last used ones; -1 if it is not among them.
int dialogVltSrsChooser::lastUsedIndex(const SrsEntry &userDefined) const
{
    const int index = m_lastUsed.indexOfCode(userDefined.code);
    return index >= 0 && m_lastUsed.at(index).isUserDefined ? index : -1;
}
