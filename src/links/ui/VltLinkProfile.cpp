#include "links/ui/VltLinkProfile.h"

#include "links/ClearanceText.h"
#include "links/ProfileChart.h"
#include "links/ProfilePicture.h"
#include "links/ui/ProfileView.h"
#include "platform/AtomicFile.h"
#include "platform/Settings.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QRegularExpression>
#include <QSettings>
#include <QToolButton>
#include <QToolTip>

using vlt::geodata::LinkProfile;
using vlt::links::ChosenLink;

namespace {

constexpr int PatienceMs = 250;
const QString LastUsedDirKey = QStringLiteral("LastUsedDir");

QString fileNameOf(const vlt::geodata::LinkReport &link)
{
    static const QRegularExpression other(QStringLiteral("[^\\w.-]+"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    QString name = link.name.isEmpty() ? vlt::links::linkTitle(link) : link.name;
    return name.replace(other, QStringLiteral("_")) + QStringLiteral(".svg");
}

} // namespace

VltLinkProfile::VltLinkProfile(QWidget *parent)
    : QWidget(parent)
    , m_pwTbFold(new QToolButton(this))
    , m_pwTbCopy(new QToolButton(this))
    , m_pwTbSave(new QToolButton(this))
    , m_pwLblFigures(new QLabel(this))
    , m_view(new vlt::links::ProfileView(this))
{
    m_view->setObjectName(QStringLiteral("m_pwLinkProfile"));
    m_pwLblFigures->setObjectName(QStringLiteral("m_pwLblProfile"));
    m_pwLblFigures->setWordWrap(true);
    m_pwLblFigures->setTextFormat(Qt::RichText);
    m_pwLblFigures->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    buildHeading();
    layout->addWidget(m_pwLblFigures);
    layout->addWidget(m_view, 1);
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_view->setProfile(std::nullopt);
        showFigures(tr("Reading the terrain...", "MESS_PROFILE_READING"));
    });
    fold(true);
    hide();
}

void VltLinkProfile::buildHeading()
{
    m_pwTbFold->setObjectName(QStringLiteral("m_pwTbProfile"));
    m_pwTbFold->setText(tr("Profile", "MESS_PROFILE"));
    m_pwTbFold->setToolTip(
        tr("Show the path of the selected link over the terrain", "MESS_TIP_PROFILE"));
    m_pwTbFold->setCheckable(true);
    m_pwTbFold->setChecked(true);
    m_pwTbFold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_pwTbFold, &QToolButton::toggled, this, &VltLinkProfile::fold);
    auto *copying = new QAction(tr("Copy", "MESS_COPY_PROFILE"), this);
    copying->setToolTip(
        tr("Copy the profile as a picture and its figures as text", "MESS_TIP_COPY_PROFILE"));
    connect(copying, &QAction::triggered, this, &VltLinkProfile::copy);
    auto *saving = new QAction(tr("Save as...", "MESS_SAVE_PROFILE"), this);
    saving->setToolTip(tr("Save the profile as an SVG or PNG picture", "MESS_TIP_SAVE_PROFILE"));
    connect(saving, &QAction::triggered, this, &VltLinkProfile::saveAs);
    auto *heading = new QHBoxLayout;
    heading->addWidget(m_pwTbFold);
    heading->addStretch(1);
    for (const auto &[button, action] :
         {std::pair(m_pwTbCopy, copying), std::pair(m_pwTbSave, saving)}) {
        action->setIconText(action->text()); // else the ellipsis would be missing
        button->setDefaultAction(action);
        m_view->addAction(action);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        heading->addWidget(button);
    }
    copying->setShortcut(QKeySequence::Copy);
    saving->setShortcut(QKeySequence::Save);
    for (QToolButton *button : {m_pwTbFold, m_pwTbCopy, m_pwTbSave}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
    }
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    static_cast<QVBoxLayout *>(layout())->addLayout(heading);
}

void VltLinkProfile::showLink(const std::optional<ChosenLink> &chosen)
{
    m_wanted = chosen;
    m_isOutdated = true;
    setVisible(chosen.has_value());
    if (!chosen) {
        m_patience.stop();
        m_view->setProfile(std::nullopt);
    } else if (!m_isReading) {
        read();
    }
}

/// Reads the profile of the wanted link.
void VltLinkProfile::read()
{
    using Read = std::optional<LinkProfile>;
    m_isReading = true;
    m_isOutdated = false;
    if (!m_patience.isActive())
        m_patience.start();
    vlt::wizard::valueBeside<Read>(
        this,
        [wanted = *m_wanted] {
            return vlt::geodata::profileOf(wanted.link, wanted.endSystem, wanted.input);
        },
        [this](const Read &profile) {
            m_isReading = false;
            if (!m_wanted)
                return;
            if (m_isOutdated)
                read();
            else
                take(profile);
        });
}

void VltLinkProfile::take(const std::optional<LinkProfile> &profile)
{
    m_patience.stop();
    m_view->setProfile(profile);
    m_view->setAccessibleName(
        tr("Profile of %1", "MESS_PROFILE_OF").arg(vlt::links::linkTitle(m_wanted->link)));
    using vlt::linkpath::Lack;
    const Lack lack = m_wanted->link.isPlaced ? Lack::Length : Lack::Position;
    showFigures(profile ? vlt::links::profileFigures(*profile) : vlt::links::lackText(lack));
}

/// Shows title and figures; they are the text of the drawing.
void VltLinkProfile::showFigures(const QString &figures)
{
    const vlt::geodata::LinkReport &link = m_wanted->link;
    m_pwLblFigures->setText(
        QStringLiteral("<span style=\"color:%1\">\u25cf</span>&nbsp;<b>%2</b>  \u2022  %3")
            .arg(vlt::links::colorOfClearance(link.clearance.status).name(),
                 vlt::links::linkTitle(link).toHtmlEscaped(), figures.toHtmlEscaped()));
    fold(m_pwTbFold->isChecked());
}

void VltLinkProfile::fold(bool open)
{
    const bool hasProfile = m_view->profile().has_value();
    m_pwTbFold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_pwLblFigures->setVisible(open);
    m_view->setVisible(open && hasProfile);
    for (QToolButton *button : {m_pwTbCopy, m_pwTbSave})
        button->setVisible(open && hasProfile);
}

void VltLinkProfile::copy()
{
    if (!m_view->profile())
        return;
    const LinkProfile &profile = *m_view->profile();
    auto *copied = new QMimeData;
    copied->setText(vlt::links::linkTitle(profile.link) + QLatin1Char('\n') +
                    vlt::links::profileFigures(profile));
    copied->setImageData(vlt::links::profileImage(profile));
    copied->setData(QStringLiteral("image/svg+xml"),
                    vlt::links::profilePicture(profile, QStringLiteral(".svg")));
    QGuiApplication::clipboard()->setMimeData(copied);
    QToolTip::showText(mapToGlobal(m_pwTbCopy->geometry().bottomLeft()),
                       tr("Copied", "MESS_COPIED"));
}

void VltLinkProfile::saveAs()
{
    if (!m_view->profile())
        return;
    const LinkProfile profile = *m_view->profile(); // the selection may change meanwhile
    const QString directory = vlt::platform::wizardSettings()->value(LastUsedDirKey).toString();
    QFileDialog dialog(this, tr("Save the profile as", "MESS_SAVE_PROFILE_TITLE"), directory,
                       QStringLiteral("SVG (*.svg);;PNG (*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("svg"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(filter.left(3).toLower());
    });
    dialog.selectFile(fileNameOf(profile.link));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().constFirst();
    const auto saved = vlt::platform::writeWhole(path, vlt::links::profilePicture(profile, path),
                                                 vlt::platform::Access::Shared);
    if (!saved)
        vlt::messages::critical(this, {QStringLiteral("MESS_CANT_SAVE_PROFILE"),
                                       QStringLiteral("The profile cannot be saved"), path,
                                       saved.error().detail});
}
