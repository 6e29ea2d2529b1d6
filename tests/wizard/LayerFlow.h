#pragma once

#include "app/GeodataLibrary.h"
#include "platform/Settings.h"
#include "support/Files.h"
#include "wizard/base/DraggableIcon.h"
#include "wizard/frame/VltTelecomLayersWizard.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Helpers for the tests of the pages that make a layer from a table.
namespace layerflow {

inline const QString Samples = QStringLiteral(VLT_SAMPLES);
inline const QString SampleProject = Samples + QStringLiteral("/city.gvw");

/// A private installation with the drivers of the build.
inline QString installation()
{
    static const QTemporaryDir dir;
    return dir.path();
}

inline bool makeInstallation()
{
    vlt::app::registerGeodataDrivers();
    copyFolder(QStringLiteral(VLT_INSTALLATION), installation());
    return QFile::link(QStringLiteral(VLT_DRIVERS), installation() + QStringLiteral("/driver"));
}

inline void forgetSettings()
{
    vlt::platform::wizardSettings()->clear();
    vlt::platform::builderSettings()->clear();
    vlt::platform::builderSettings()->setValue(QStringLiteral("INSTALL_DIR"), installation());
}

/// The layer that the command line makes from a table of the sample project.
///
/// @param command  "site" or "link"
inline QByteArray layerOfCommandLine(const QString &command, const QString &table,
                                     const QStringList &options)
{
    const QTemporaryDir dir;
    const QString layer = dir.filePath(QStringLiteral("out.lay"));
    QProcess process;
    process.start(QStringLiteral(VLT_PROGRAM),
                  QStringList{command, table, QStringLiteral("-o"), layer,
                              QStringLiteral("--install"), installation(),
                              QStringLiteral("--project"), SampleProject,
                              QStringLiteral("--language"), QStringLiteral("en")} +
                      options);
    process.waitForFinished(-1);
    return process.exitCode() == 0 ? readFile(layer) : process.readAllStandardError();
}

/// The real wizard in English, on a result page.
class WizardOnPage
{
public:
    /// @param kind  object name of the first page's button
    explicit WizardOnPage(const QString &kind, const QString &installDir = installation(),
                          const QString &project = SampleProject)
        : wizard(installDir, QStringLiteral("en"))
    {
        wizard.show();
        widget<QAbstractButton>(kind)->click();
        widget<QLineEdit>(QStringLiteral("m_pwLeProjectName"))->setText(project);
        wizard.button(QWizard::NextButton)->click();
        page = wizard.currentPage();
        icon = page->findChild<DraggableIcon *>();
    }

    template<typename Widget>
    Widget *widget(const QString &name)
    {
        return wizard.currentPage()->findChild<Widget *>(name);
    }

    QString description() { return widget<QLabel>(QStringLiteral("m_pwLblFileInfo"))->text(); }

    VltTelecomLayersWizard wizard;
    QWidget *page = nullptr;
    DraggableIcon *icon = nullptr;
};

class WizardOnSitePage : public WizardOnPage
{
public:
    explicit WizardOnSitePage(const QString &installDir = installation())
        : WizardOnPage(QStringLiteral("m_pwClAddSite"), installDir)
    {}
};

} // namespace layerflow
