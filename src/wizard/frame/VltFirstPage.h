#pragma once

#include <QWizardPage>

#include <memory>

namespace Ui {
class FirstPage;
}

/// The page on which the user chooses the kind of layer. Each of its three buttons opens the
/// project page immediately; the wizard's Next button does not.
class VltFirstPage : public QWizardPage
{
    Q_OBJECT

public:
    /// Wizard ids of the pages that the buttons open.
    struct PageIds
    {
        int project = -1;
        int addSite = -1;
        int addLink = -1;
        int buildingsSource = -1;
    };

    explicit VltFirstPage(QWidget *wizard);
    ~VltFirstPage() override;

    void setPageIds(const PageIds &ids) { m_ids = ids; }

    /// Shows the button of the sample project, which is hidden at first.
    void offerSample();

    void initializePage() override;
    int nextId() const override { return m_nextId; }

public Q_SLOTS:
    void addSiteClicked();
    void addLinkClicked();
    void addTexbClicked();

Q_SIGNALS:
    /// The page that follows the project page was chosen.
    void nextPageSelected(int id);
    void sampleWanted();

private:
    void leadTo(int id, QWidget *chosen);

    std::unique_ptr<Ui::FirstPage> m_ui;
    PageIds m_ids;
    int m_nextId = -1;
};
