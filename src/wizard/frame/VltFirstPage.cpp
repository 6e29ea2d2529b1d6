#include "wizard/frame/VltFirstPage.h"

#include "ui_FirstPage.h"

#include <QWizard>

VltFirstPage::VltFirstPage(QWidget *wizard)
    : QWizardPage(wizard)
    , m_ui(std::make_unique<Ui::FirstPage>())
{
    m_ui->setupUi(this);
    setTitle(tr("Kind of layer", "MESS_PAGE_LAYER_KIND"));
    setFocusProxy(m_ui->m_pwClAddSite);
    for (auto *button : findChildren<QCommandLinkButton *>())
        button->setAccessibleDescription(button->description());
    connect(m_ui->m_pwClAddSite, &QCommandLinkButton::clicked, this, &VltFirstPage::addSiteClicked);
    connect(m_ui->m_pwClAddLink, &QCommandLinkButton::clicked, this, &VltFirstPage::addLinkClicked);
    connect(m_ui->m_pwClAddTexb, &QCommandLinkButton::clicked, this, &VltFirstPage::addTexbClicked);
    m_ui->m_pwPbSample->hide();
    connect(m_ui->m_pwPbSample, &QPushButton::clicked, this, &VltFirstPage::sampleWanted);
}

VltFirstPage::~VltFirstPage() = default;

void VltFirstPage::offerSample()
{
    m_ui->m_pwPbSample->show();
}

void VltFirstPage::initializePage()
{
    m_nextId = -1;
}

void VltFirstPage::addSiteClicked()
{
    leadTo(m_ids.addSite, m_ui->m_pwClAddSite);
}

void VltFirstPage::addLinkClicked()
{
    leadTo(m_ids.addLink, m_ui->m_pwClAddLink);
}

void VltFirstPage::addTexbClicked()
{
    leadTo(m_ids.buildingsSource, m_ui->m_pwClAddTexb);
}

void VltFirstPage::leadTo(int id, QWidget *chosen)
{
    setFocusProxy(chosen); // for a return to this page
    m_nextId = m_ids.project;
    Q_EMIT nextPageSelected(id);
    wizard()->next();
    m_nextId = -1;
}
