#include "wizard/frame/PlannedPage.h"

#include <QAbstractButton>
#include <QLabel>
#include <QVBoxLayout>

PlannedPage::PlannedPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                         const QString &language, const QString &title, const QString &purpose)
    : BasePage(wizard, parameters, installDir, language)
{
    setTitle(title);
    setAcceptDrops(false);
    auto *text = new QLabel(
        purpose + QStringLiteral("\n\n") +
            tr("This version does not have this page yet. Go back to choose another kind of layer.",
               "MESS_PLANNED_PAGE"),
        this);
    text->setObjectName(QStringLiteral("m_pwLblPlanned"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
}

void PlannedPage::initializePage()
{
    BasePage::initializePage();
    setFocusProxy(wizard()->button(QWizard::BackButton)); // all there is to do
}
