#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>
#include <QWizardPage>

/// Values that the pages share, by key: texts, numbers and lists.
using SharedParameters = QVariantMap;

/// Base of all pages of the wizard except the first. Restores the page's remembered values when it
/// is shown for the first time, and takes files that are dropped on it.
class BasePage : public QWizardPage
{
    Q_OBJECT

public:
    /// @param parameters  the wizard's map; must outlive the page
    /// @param installDir  root of the installation, absolute
    /// @param language    language code ("fr", "en")
    BasePage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
             const QString &language);

    /// Restores the settings the first time. An override must call this function first.
    void initializePage() override;

    /// Does nothing, so that the entered values are still there when the user returns to the page.
    void cleanupPage() override {}

    /// Writes the page's remembered values and publishes the values for later pages.
    virtual void saveSettings();

    /// Reads the remembered values.
    virtual void restoreSettings();

    /// Takes a file that was dropped on the page; each page decides which files it accepts.
    ///
    /// @param path  local file
    virtual void droppedFile(const QString &path);

protected:
    /// Ends the handling of Return, which only confirms a typed value; otherwise the wizard would
    /// press one of its buttons.
    void keyPressEvent(QKeyEvent *event) override;

    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /// Sets the widgets whose text is underlined while a file is dragged over the page.
    void setDropHighlightWidgets(const QList<QWidget *> &widgets);

    SharedParameters &parameters() { return m_parameters; }
    const QString &installDir() const { return m_installDir; }
    const QString &language() const { return m_language; }

private:
    void underlineHighlights(bool underlined);

    SharedParameters &m_parameters;
    QString m_installDir;
    QString m_language;
    bool m_settingsPending = true;
    QList<QWidget *> m_dropHighlights;
};
