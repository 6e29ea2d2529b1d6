#include "wizard/base/BasePage.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

BasePage::BasePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                   const QString &language)
    : QWizardPage(wizard)
    , m_parameters(parameters)
    , m_installDir(installDir)
    , m_language(language)
{
    setAcceptDrops(true);
}

void BasePage::initializePage()
{
    setAccessibleName(title());
    if (!m_settingsPending)
        return;
    m_settingsPending = false;
    restoreSettings();
}

void BasePage::saveSettings() {}

void BasePage::restoreSettings() {}

void BasePage::droppedFile(const QString & /*path*/) {}

void BasePage::setDropHighlightWidgets(const QList<QWidget *> &widgets)
{
    m_dropHighlights = widgets;
}

void BasePage::underlineHighlights(bool underlined)
{
    for (QWidget *widget : std::as_const(m_dropHighlights)) {
        QFont font = widget->font();
        font.setUnderline(underlined);
        widget->setFont(font);
    }
}

void BasePage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        QWizardPage::keyPressEvent(event);
}

void BasePage::dragEnterEvent(QDragEnterEvent *event)
{
    // A layer that is dragged out of this window is not a dropped file.
    if (const auto *source = qobject_cast<QWidget *>(event->source());
        source && source->window() == window()) {
        event->ignore();
        return;
    }
    underlineHighlights(true);
    event->acceptProposedAction();
}

void BasePage::dragLeaveEvent(QDragLeaveEvent *event)
{
    underlineHighlights(false);
    QWizardPage::dragLeaveEvent(event);
}

void BasePage::dropEvent(QDropEvent *event)
{
    underlineHighlights(false);
    if (!event->mimeData()->hasUrls())
        return;
    event->acceptProposedAction();
    const QString path = event->mimeData()->urls().constFirst().toLocalFile();
    if (!path.isEmpty())
        droppedFile(path);
}
