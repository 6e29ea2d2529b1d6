#include "wizard/frame/VltTelecomLayersWizard.h"

#include "buildings/ui/VltAddTexbColoredPage.h"
#include "buildings/ui/VltAddTexbFirstPage.h"
#include "buildings/ui/VltAddTexbPreviewPage.h"
#include "buildings/ui/VltAddTexbTexturedPage.h"
#include "links/ui/VltAddLinkPage.h"
#include "platform/Settings.h"
#include "sites/ui/VltAddSitePage.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"
#include "wizard/frame/GivenFile.h"
#include "wizard/frame/VltFirstPage.h"
#include "wizard/project/TypedPath.h"
#include "wizard/project/ui/VltSecondPage.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QFileInfo>
#include <QIcon>
#include <QScreen>

#include <utility>

namespace {

const QString GeometryKey = QStringLiteral("mainGeometry");

const QString SampleProject = QStringLiteral("city.gvw");
const QString SampleSites = QStringLiteral("sites.csv");

// Enough for the settings of a result page and its preview.
constexpr QSize ComfortableSize(1180, 680);
// A large screen gives the view more space.
constexpr QSize LargestSize(1920, 1200);
constexpr double ShareOfScreen = 0.75;
// Approximate size of the window frame.
constexpr QSize FrameAllowance(20, 60);

} // namespace

VltTelecomLayersWizard::VltTelecomLayersWizard(const QString &installDir, const QString &language,
                                               QWidget *parent, Qt::WindowFlags flags)
    : QWizard(parent, flags)
    , m_installDir(installDir)
    , m_language(language)
{
    setWindowTitle(tr("Add sites, links and predictions wizard", "MESS_TELECOM_LAYERS"));
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    setWizardStyle(QWizard::ModernStyle);
    restoreWindowGeometry();
    setOption(QWizard::NoBackButtonOnStartPage);
    setOption(QWizard::NoDefaultButton);
    setUpButtons();
    addPages();
    // queued, because the page becomes visible after it becomes the current one
    connect(this, &QWizard::currentIdChanged, this, &VltTelecomLayersWizard::focusPage,
            Qt::QueuedConnection);
    connect(this, &QWizard::currentIdChanged, this, &VltTelecomLayersWizard::openOnPage,
            Qt::QueuedConnection);
    restart();
}

void VltTelecomLayersWizard::restoreWindowGeometry()
{
    const QByteArray stored = vlt::platform::wizardSettings()->value(GeometryKey).toByteArray();
    const bool restored = restoreGeometry(stored);
    const QRect available = screen()->availableGeometry();
    const QSize room = available.size() - FrameAllowance;
    if (!restored) {
        const QSize share = available.size() * ShareOfScreen;
        resize(ComfortableSize.expandedTo(share).boundedTo(LargestSize).boundedTo(room));
    } else if (!isMaximized() && size() != size().boundedTo(room)) { // stored with a larger screen
        resize(size().boundedTo(room));
        move(available.topLeft());
    }
}

void VltTelecomLayersWizard::saveWindowGeometry() const
{
    vlt::platform::wizardSettings()->setValue(GeometryKey, saveGeometry());
}

void VltTelecomLayersWizard::setUpButtons()
{
    setButtonText(QWizard::NextButton, tr("Next", "MESS_SUIVANT"));
    setButtonText(QWizard::BackButton, tr("Previous", "MESS_PRECEDENT"));
    setButtonText(QWizard::CancelButton, tr("Quit", "MESS_QUITTER"));
    button(QWizard::NextButton)->setIcon(QIcon(QStringLiteral(":/images/Next.png")));
    button(QWizard::BackButton)->setIcon(QIcon(QStringLiteral(":/images/Back.png")));
    button(QWizard::CancelButton)->setIcon(QIcon(QStringLiteral(":/images/Quit.png")));
    button(QWizard::NextButton)->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    button(QWizard::BackButton)->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    for (const auto which : {QWizard::NextButton, QWizard::BackButton}) {
        QAbstractButton *moving = button(which);
        moving->setToolTip(moving->shortcut().toString(QKeySequence::NativeText));
    }
    setButtonLayout(
        {QWizard::Stretch, QWizard::BackButton, QWizard::NextButton, QWizard::CancelButton});
}

void VltTelecomLayersWizard::addPages()
{
    auto *first = new VltFirstPage(this);
    addPageAs(LogicalPage::First, first);
    addPageAs(LogicalPage::Project,
              new VltSecondPage(this, m_parameters, m_installDir, m_language));
    addPageAs(LogicalPage::AddSite,
              new VltAddSitePage(this, m_parameters, m_installDir, m_language));
    addPageAs(LogicalPage::AddLink,
              new VltAddLinkPage(this, m_parameters, m_installDir, m_language));
    addBuildingPages();
    first->setPageIds({pageId(LogicalPage::Project), pageId(LogicalPage::AddSite),
                       pageId(LogicalPage::AddLink), pageId(LogicalPage::BuildingsSource)});
    connect(first, &VltFirstPage::nextPageSelected, this,
            &VltTelecomLayersWizard::setNextIdOfSecondPage);
    connect(first, &VltFirstPage::sampleWanted, this, &VltTelecomLayersWizard::openSample);
    if (QFileInfo(sampleFile(SampleProject)).isFile() &&
        QFileInfo(sampleFile(SampleSites)).isFile())
        first->offerSample();
}

QString VltTelecomLayersWizard::sampleFile(const QString &name) const
{
    return m_installDir + QStringLiteral("/examples/lorient/") + name;
}

void VltTelecomLayersWizard::openSample()
{
    openFile(sampleFile(SampleProject));
    openFile(sampleFile(SampleSites));
}

void VltTelecomLayersWizard::addPageAs(LogicalPage logical, QWizardPage *page)
{
    m_pageIds[static_cast<std::size_t>(logical)] = addPage(page);
}

/// Adds the pages in the order of their wizard ids, which is not that of the logical pages.
void VltTelecomLayersWizard::addBuildingPages()
{
    auto *source = new VltAddTexbFirstPage(this, m_parameters, m_installDir, m_language);
    addPageAs(LogicalPage::BuildingsSource, source);
    auto *textured = new VltAddTexbTexturedPage(this, m_parameters, m_installDir, m_language);
    addPageAs(LogicalPage::BuildingsTextured, textured);
    addPageAs(LogicalPage::BuildingsColored,
              new VltAddTexbColoredPage(this, m_parameters, m_installDir, m_language));
    addPageAs(LogicalPage::BuildingsDisplay,
              new VltAddTexbPreviewPage(this, m_parameters, m_installDir, m_language));
    source->setColoredPageId(pageId(LogicalPage::BuildingsColored));
    source->setTexturedPageId(pageId(LogicalPage::BuildingsTextured));
    textured->setNextId(pageId(LogicalPage::BuildingsDisplay));
}

void VltTelecomLayersWizard::setNextIdOfSecondPage(int id)
{
    auto *second = qobject_cast<VltSecondPage *>(page(pageId(LogicalPage::Project)));
    second->setNextId(id);
    second->selectFirstProject();
}

/// Moves the window back on the screen: a page that needs more space than the previous ones extends
/// it to the right and downwards.
void VltTelecomLayersWizard::keepOnScreen()
{
    const QRect available = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    const int beyondRight = qMax(0, frame.right() - available.right());
    const int beyondBottom = qMax(0, frame.bottom() - available.bottom());
    const int beyondTop = qMax(0, available.top() - frame.top());
    if (isVisible() && beyondRight + beyondBottom + beyondTop > 0)
        move(qMax(available.left(), pos().x() - beyondRight),
             qMax(available.top(), pos().y() - beyondBottom));
}

/// Gives the keyboard focus to the focus proxy of the page.
void VltTelecomLayersWizard::focusPage()
{
    keepOnScreen();
    if (currentPage() != nullptr && currentPage()->focusProxy() != nullptr)
        currentPage()->setFocus(Qt::TabFocusReason); // this reason makes the focus visible
}

void VltTelecomLayersWizard::openFile(const QString &path)
{
    using vlt::wizard::FileKind;
    const QString file = QFileInfo(vlt::project::typedPath(path)).absoluteFilePath();
    const auto kind =
        vlt::wizard::waitForValue<FileKind>(this, tr("Reading the file...", "MESS_LOOKING_AT_FILE"),
                                            [file] { return vlt::wizard::kindOfFile(file); });
    const auto warn = [this, &file](const char *key, const char *text) {
        vlt::messages::warning(this, {QString::fromLatin1(key), QString::fromUtf8(text), file},
                               tr("Warning", "MESS_ATTENTION"));
    };
    if (!kind) // cancelled by the user
        return;
    switch (*kind) {
    case FileKind::Project:
        qobject_cast<VltSecondPage *>(page(pageId(LogicalPage::Project)))->offerProject(file);
        break;
    case FileKind::SiteTable:
        return leadToPageOf(LogicalPage::AddSite, file);
    case FileKind::LinkTable:
        return leadToPageOf(LogicalPage::AddLink, file);
    case FileKind::BuildingSource:
        return leadToPageOf(LogicalPage::BuildingsSource, file);
    case FileKind::Layer:
        return warn("MESS_FILE_IS_LAYER",
                    "This layer is finished: drag its file into Veltaro Builder");
    case FileKind::Missing:
        return warn("MESS_FILE_IS_MISSING", "This file does not exist");
    case FileKind::Unknown:
        return warn("MESS_FILE_IS_UNKNOWN", "This file is neither a project nor a table of sites "
                                            "or links, footprints of buildings or a raster");
    }
}

void VltTelecomLayersWizard::leadToPageOf(LogicalPage logical, const QString &path)
{
    m_fileToOpen = path;
    m_pageToOpenIt = pageId(logical);
    auto *first = qobject_cast<VltFirstPage *>(page(pageId(LogicalPage::First)));
    if (logical == LogicalPage::AddSite)
        first->addSiteClicked();
    else if (logical == LogicalPage::AddLink)
        first->addLinkClicked();
    else
        first->addTexbClicked();
    if (currentPage()->isComplete()) // otherwise the user has to choose a project first
        next();
}

/// Opens the file on the page as if it were dropped on it.
void VltTelecomLayersWizard::openOnPage()
{
    if (currentId() != m_pageToOpenIt || m_fileToOpen.isEmpty())
        return;
    if (auto *taking = qobject_cast<BasePage *>(currentPage()))
        taking->droppedFile(std::exchange(m_fileToOpen, QString()));
}

void VltTelecomLayersWizard::closeEvent(QCloseEvent *event)
{
    saveWindowGeometry();
    QWizard::closeEvent(event);
}

void VltTelecomLayersWizard::done(int result)
{
    saveWindowGeometry();
    QWizard::done(result);
}

void VltTelecomLayersWizard::reject()
{
    if (vlt::messages::confirmed(this,
                                 tr("Voulez-vous quitter l'application ?", "MESS_QUEST_QUIT_APP")))
        QWizard::reject();
}
