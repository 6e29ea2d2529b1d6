#include "wizard/base/VltResultPage.h"

#include "wizard/base/DraggableIcon.h"
#include "wizard/base/Messages.h"
#include "wizard/base/TemporaryLayerFile.h"
#include "wizard/base/VltParameterPanel.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>

namespace {

/// Whether an event starts a drag, copies the file or opens the icon's menu; events that only move
/// the focus do not count.
bool takesHold(const QEvent &event)
{
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent &>(event).key();
        return key != Qt::Key_Tab && key != Qt::Key_Backtab;
    }
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::ContextMenu;
}

} // namespace

VltResultPage::VltResultPage(QWidget *wizard, SharedParameters &parameters,
                             const QString &installDir, const QString &language, const Names &names)
    : BasePage(wizard, parameters, installDir, language)
    , m_names(names)
{}

void VltResultPage::setResult(const ResultSide &side)
{
    constexpr QSize IconSize(72, 72);
    const QIcon picture(QStringLiteral(":/images/drag-drop-icon.png"));
    m_dragText = side.dragText;
    m_dragIcon = new DraggableIcon(picture.pixmap(IconSize, qApp->devicePixelRatio()), this);
    m_dragIcon->setObjectName(QStringLiteral("m_pwDragIcon"));
    m_dragIcon->setAccessibleName(side.iconName);
    m_dragIcon->setToolTip(side.iconToolTip);
    m_dragIcon->installEventFilter(this);
    side.dragRow->addWidget(m_dragIcon);
    setLayerFile({});
}

void VltResultPage::addPanel(VltParameterPanel *panel)
{
    m_panels << panel;
    connect(panel, &VltParameterPanel::parameterChanged, this, &VltResultPage::updatePreview);
}

void VltResultPage::initializePage()
{
    Q_ASSERT(m_dragIcon); // setResult()
    BasePage::initializePage();
    m_state = State::Outdated;
}

bool VltResultPage::validatePage()
{
    return vlt::messages::confirmed(
        this, tr("Voulez-vous quitter l'application ?", "MESS_QUEST_QUIT_APP"));
}

void VltResultPage::saveSettings()
{
    for (VltParameterPanel *panel : std::as_const(m_panels))
        panel->saveSettings(m_names.settings);
}

void VltResultPage::restoreSettings()
{
    for (VltParameterPanel *panel : std::as_const(m_panels))
        panel->loadSettings(m_names.settings);
}

void VltResultPage::updatePreview()
{
    makeLayer();
}

/// Makes an outdated layer again before the user drags or copies it.
bool VltResultPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_dragIcon && takesHold(*event) && isOutdated() && m_dragIcon->isEnabled() &&
        !makeLayer())
        return true;
    return BasePage::eventFilter(watched, event);
}

void VltResultPage::setLayerFile(const QString &path)
{
    m_dragIcon->setLayerFile(path);
    m_dragText->setEnabled(!path.isEmpty());
}

void VltResultPage::outdate()
{
    if (isMaking())
        m_state = State::MakingOutdated;
    else if (isShown())
        m_state = State::Outdated;
}

bool VltResultPage::makeLayer(const std::function<void()> &readInput)
{
    if (isMaking()) {
        outdate();
        return false;
    }
    const bool isFirst = !isShown();
    if (!isFirst)
        m_state = State::Making;
    if (readInput)
        readInput();
    if (isFirst)
        return false;
    bool isMade = false;
    do {
        m_state = State::Making;
        isMade = makeOnce();
    } while (m_state == State::MakingOutdated && followsChanges());
    m_state = m_state == State::MakingOutdated ? State::Outdated : State::Current;
    return isMade;
}

bool VltResultPage::makeOnce()
{
    beginLayer();
    if (const std::optional<QString> why = obstacle()) {
        leaveLayer(*why);
        return false;
    }
    const QString path = vlt::wizard::temporaryLayerFileName(m_names.layer);
    const auto written = writeLayer(path, vlt::platform::Access::UserOnly);
    if (!written || !*written) {
        leaveLayer({});
        if (written)
            vlt::messages::critical(this, written->error());
        return false;
    }
    saveSettings();
    setLayerFile(path);
    showLayer(path);
    return true;
}

void VltResultPage::leaveLayer(const QString &why)
{
    setLayerFile({});
    showNoLayer(why);
}
