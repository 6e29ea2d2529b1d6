#include "wizard/project/ui/VltSecondPage.h"

#include "ui_SecondPage.h"

#include "geodata/ConfigurationOption.h"
#include "geodata/SrsFacts.h"
#include "language/VltLanguageManager.h"
#include "platform/Settings.h"
#include "wizard/base/Messages.h"
#include "wizard/project/ProjectContents.h"
#include "wizard/project/ProjectReaders.h"
#include "wizard/project/RecentProjects.h"
#include "wizard/project/TypedPath.h"
#include "wizard/project/ui/PlainToolTips.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QWizard>

using namespace vlt;

namespace {

const QString LastUsedDir = QStringLiteral("LastUsedDir");

bool isReadableFile(const QString &path)
{
    // only regular files, because opening a pipe may never end
    return QFileInfo(path).isFile() && QFile(path).open(QIODevice::ReadOnly);
}

} // namespace

VltSecondPage::VltSecondPage(QWidget *wizard, SharedParameters &parameters,
                             const QString &installDir, const QString &language)
    : BasePage(wizard, parameters, installDir, language)
    , m_ui(std::make_unique<Ui::SecondPage>())
{
    m_ui->setupUi(this);
    setTitle(tr("Target project", "MESS_PAGE_PROJECT"));
    setDropHighlightWidgets({m_ui->label, m_ui->m_pwLbProjectName});
    m_ui->m_pwLwRecentProjects->setItemDelegate(new PlainToolTips(this));
    fillRecentProjects();
    connectWidgets();
    registerField(QStringLiteral("ProjectName*"), m_ui->m_pwLeProjectName);
}

VltSecondPage::~VltSecondPage() = default;

void VltSecondPage::fillRecentProjects()
{
    const QStringList paths =
        project::recentProjects(geodata::configurationOption("VLT_CURRENT_PROJECT"));
    for (const QString &path : paths)
        addProject(m_ui->m_pwLwRecentProjects->count(), path);
    showWhetherThereAreProjects();
}

void VltSecondPage::addProject(int row, const QString &path)
{
    const QIcon icon(QStringLiteral(":/images/veltaro_gvw_file.png"));
    auto *item = new QListWidgetItem(icon, project::projectCaption(path));
    item->setToolTip(path);
    item->setData(Qt::AccessibleDescriptionRole, path);
    m_ui->m_pwLwRecentProjects->insertItem(row, item);
}

void VltSecondPage::showWhetherThereAreProjects()
{
    const bool isEmpty = m_ui->m_pwLwRecentProjects->count() == 0;
    m_ui->m_pwLwRecentProjects->setVisible(!isEmpty);
    m_ui->m_pwLblNoRecentProjects->setVisible(isEmpty);
    if (isEmpty)
        setFocusProxy(m_ui->m_pwLeProjectName);
    else
        setFocusProxy(m_ui->m_pwLwRecentProjects);
}

void VltSecondPage::offerProject(const QString &path)
{
    QListWidget *list = m_ui->m_pwLwRecentProjects;
    for (int row = list->count() - 1; row >= 0; --row) {
        if (list->item(row)->toolTip() == path)
            delete list->takeItem(row);
    }
    addProject(0, path);
    showWhetherThereAreProjects();
    selectFirstProject();
}

void VltSecondPage::connectWidgets()
{
    connect(m_ui->m_pwPbSelectProject, &QPushButton::clicked, this, &VltSecondPage::selectProject);
    QListWidget *list = m_ui->m_pwLwRecentProjects;
    connect(list, &QListWidget::currentItemChanged, this, &VltSecondPage::projectSelected);
    connect(list, &QListWidget::itemClicked, this, &VltSecondPage::projectSelected);
    connect(list, &QListWidget::itemDoubleClicked, this, &VltSecondPage::projectDoubleClicked);
    connect(m_ui->m_pwLeProjectName, &QLineEdit::textChanged, this,
            &VltSecondPage::showWhichProject);
    connect(m_ui->m_pwLeProjectName, &QLineEdit::textChanged, this, &VltSecondPage::showContents);
}

QString VltSecondPage::typedProject() const
{
    return project::typedPath(m_ui->m_pwLeProjectName->text());
}

/// Shows what the project holds. A file without any project data can be chosen, but is probably the
/// wrong one.
void VltSecondPage::showContents()
{
    const QString path = typedProject();
    const bool isReadable = isReadableFile(path);
    m_ui->m_pwLblProjectNotice->setVisible(isReadable);
    if (!isReadable)
        return;
    const QString system = geodata::srsFacts(project::referenceProjection(path)).name;
    const QStringList contents = project::projectContents(path, system);
    m_ui->m_pwLblProjectNotice->setText(
        contents.isEmpty() ? tr("%1: %2", "MESS_FILE_REASON")
                                 .arg(QFileInfo(path).fileName(), project::namesNothingText())
                           : contents.join(QLatin1Char('\n')));
}

/// Shows an item as selected only if its project is the one in the line edit.
void VltSecondPage::showWhichProject(const QString &path)
{
    QListWidget *list = m_ui->m_pwLwRecentProjects;
    QListWidgetItem *current = list->currentItem();
    if (current != nullptr)
        current->setSelected(current->toolTip() == path);
}

void VltSecondPage::selectFirstProject()
{
    if (m_ui->m_pwLwRecentProjects->count() > 0)
        m_ui->m_pwLwRecentProjects->setCurrentRow(0);
}

bool VltSecondPage::validatePage()
{
    const QString path = typedProject();
    if (!isReadableFile(path)) {
        const Error error = {QStringLiteral("MESS_OUV_PRJ_IMP"),
                             QStringLiteral("Cannot open project"),
                             m_ui->m_pwLeProjectName->text()};
        messages::warning(this, error, dico_label("MESS_ERREUR", "Error !!!"));
        return false;
    }
    m_ui->m_pwLeProjectName->setText(path);
    saveSettings();
    return true;
}

void VltSecondPage::saveSettings()
{
    if (!m_lastUsedDir.isEmpty())
        platform::wizardSettings()->setValue(LastUsedDir, m_lastUsedDir);
    parameters().insert(QStringLiteral("ProjectName"), m_ui->m_pwLeProjectName->text());
}

void VltSecondPage::restoreSettings()
{
    m_lastUsedDir = platform::wizardSettings()->value(LastUsedDir).toString();
}

void VltSecondPage::droppedFile(const QString &path)
{
    if (QFileInfo(path).suffix() == QLatin1String("gvw"))
        m_ui->m_pwLeProjectName->setText(path);
}

void VltSecondPage::selectProject()
{
    const QString filter =
        QStringLiteral("%1 (*.gvw)").arg(tr("Veltaro project", "MESS_PROJET_VLT"));
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Select name of Veltaro project to be used", "MESS_SEL_NOM_PROJ_USE"),
        m_lastUsedDir, filter);
    if (path.isEmpty())
        return;
    m_ui->m_pwLeProjectName->setText(path);
    m_lastUsedDir = QFileInfo(path).absolutePath();
}

void VltSecondPage::projectSelected(QListWidgetItem *item)
{
    if (item != nullptr)
        m_ui->m_pwLeProjectName->setText(item->toolTip());
}

void VltSecondPage::projectDoubleClicked(QListWidgetItem * /*item*/)
{
    wizard()->next();
}

void VltSecondPage::keyPressEvent(QKeyEvent *event)
{
    BasePage::keyPressEvent(event);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && isComplete())
        wizard()->next();
}
