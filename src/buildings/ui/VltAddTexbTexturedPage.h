#pragma once

#include "buildings/FileListModel.h"
#include "wizard/base/BasePage.h"

#include <memory>

namespace Ui {
class AddTexbTexturedPage;
}
namespace vlt::buildings {
class EmptyFileListModel;
class ImagePreviews;
class TextureSortModel;
} // namespace vlt::buildings
class QMenu;

/// The page for the choice of the images on buildings. Publishes "FileList": a
/// QList<vlt::buildings::FileEntry> of all images, ticked or not.
class VltAddTexbTexturedPage : public BasePage
{
    Q_OBJECT

public:
    VltAddTexbTexturedPage(QWidget *wizard, SharedParameters &parameters, const QString &installDir,
                           const QString &language);
    ~VltAddTexbTexturedPage() override;

    /// Sets the wizard id of the next page.
    void setNextId(int id) { m_nextId = id; }

    bool isComplete() const override;
    void initializePage() override;
    bool validatePage() override;
    int nextId() const override { return m_nextId; }

    void saveSettings() override;
    void restoreSettings() override;

    /// Takes a file as the template image.
    void droppedFile(const QString &path) override;

public Q_SLOTS:
    void openTemplate();
    void updateStatusLabel(int total, int matching, int selected);
    // NOLINTNEXTLINE(readability-identifier-naming): established name of the slot
    void tablev_customContextMenu(const QPoint &point);

    /// Copies the selected rows, or all rows if none is selected, as tab-separated text.
    void copyToClipboard();

protected:
    /// The space bar ticks the selected rows.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpTable();
    void createMenu();
    void connectWidgets();
    bool isListShown() const;
    void showList();
    void fitColumns();
    void findBuildings();
    void listAround(const QString &templatePath);
    void setShownUsed(bool used);
    void toggleSelected();

    std::unique_ptr<Ui::AddTexbTexturedPage> m_ui;
    vlt::buildings::FileListModel *m_model;
    vlt::buildings::EmptyFileListModel *m_emptyModel;
    vlt::buildings::ImagePreviews *m_previews;
    vlt::buildings::TextureSortModel *m_sorted;
    QMenu *m_menu = nullptr;
    int m_nextId = -1;
    QString m_lastUsedDir;
    QList<vlt::buildings::FileEntry> m_stored; ///< as the settings have them after a save
    bool m_isSearching = false;
};
