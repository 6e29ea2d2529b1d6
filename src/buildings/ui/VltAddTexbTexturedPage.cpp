#include "buildings/ui/VltAddTexbTexturedPage.h"

#include "language/Numbers.h"
#include "ui_AddTexbTexturedPage.h"

#include "buildings/BuildingsSource.h"
#include "buildings/EmptyFileListModel.h"
#include "buildings/TextureFolders.h"
#include "buildings/ui/HeightDelegate.h"
#include "buildings/ui/ImageDelegate.h"
#include "buildings/ui/ImagePreviews.h"
#include "buildings/ui/TextureSettings.h"
#include "buildings/ui/TextureSortModel.h"
#include "platform/Settings.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/RowsAsText.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>

#include <algorithm>

using vlt::buildings::FileEntry;
using vlt::buildings::FileListModel;

namespace {

const QString LastUsedDirKey = QStringLiteral("LastUsedDir");

constexpr int MaxFolderPx = 240;

struct Buildings
{
    std::optional<vlt::geodata::PolygonLayer> layer;
    std::optional<vlt::geodata::Extent> extent;
};

Buildings readBuildings(const vlt::buildings::BuildingsSource &source)
{
    const auto opened = vlt::geodata::PolygonSource::open(source.file);
    if (!opened)
        return {};
    const QList<vlt::geodata::PolygonLayer> &layers = opened.value()->layers();
    for (int i = 0; i < layers.size(); ++i) {
        if (layers.at(i).name == source.layer)
            return {layers.at(i), opened.value()->extent(i)};
    }
    return {};
}

bool isUsed(const QModelIndex &index)
{
    return index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

} // namespace

VltAddTexbTexturedPage::VltAddTexbTexturedPage(QWidget *wizard, SharedParameters &parameters,
                                               const QString &installDir, const QString &language)
    : BasePage(wizard, parameters, installDir, language)
    , m_ui(std::make_unique<Ui::AddTexbTexturedPage>())
    , m_model(new FileListModel(this))
    , m_emptyModel(new vlt::buildings::EmptyFileListModel(this))
    , m_previews(new vlt::buildings::ImagePreviews(this))
    , m_sorted(new vlt::buildings::TextureSortModel(*m_previews, this))
{
    m_ui->setupUi(this);
    setTitle(tr("Textured buildings", "MESS_PAGE_TEXTURED"));
    setFocusProxy(m_ui->m_pwCbDataStructure);
    setDropHighlightWidgets({m_ui->m_pwPbTemplate});
    m_sorted->setSourceModel(m_model);
    setUpTable();
    createMenu();
    connectWidgets();
    m_ui->m_pwInvitation->setTexts(
        tr("Drop one of the images here", "MESS_DROP_IMAGE"),
        tr("Rasters with a position on the ground: GeoTIFF, PNG, JPEG or BMP with a world file, "
           "grids (.grc, .grd) and others.\nOne image for each height, which is read from the "
           "image or from its name, for example \"coverage_12m.tif\".",
           "MESS_DROP_IMAGE_KINDS"));
    updateStatusLabel(0, 0, 0);
    showList();
}

VltAddTexbTexturedPage::~VltAddTexbTexturedPage() = default;

void VltAddTexbTexturedPage::setUpTable()
{
    QTableView *table = m_ui->m_pwFiles;
    table->setItemDelegateForColumn(FileListModel::HeightColumn,
                                    new vlt::buildings::HeightDelegate(table));
    table->setItemDelegateForColumn(FileListModel::FileColumn,
                                    new vlt::buildings::ImageDelegate(table));
    table->verticalHeader()->setDefaultSectionSize(
        vlt::buildings::ImageDelegate::rowHeightPx(table->fontMetrics()));
    connect(m_previews, &vlt::buildings::ImagePreviews::arrived, table->viewport(),
            qOverload<>(&QWidget::update));
    QHeaderView *header = table->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSortIndicatorClearable(true);
    header->setSortIndicator(FileListModel::HeightColumn, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    table->installEventFilter(this);
}

void VltAddTexbTexturedPage::createMenu()
{
    m_menu = new QMenu(this);
    auto *copy = m_menu->addAction(tr("copy", "MESS_COPIER"), this,
                                   &VltAddTexbTexturedPage::copyToClipboard);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    m_ui->m_pwFiles->addAction(copy);
}

void VltAddTexbTexturedPage::connectWidgets()
{
    connect(m_ui->m_pwPbTemplate, &QPushButton::clicked, this,
            &VltAddTexbTexturedPage::openTemplate);
    connect(m_ui->m_pwLeFilter, &QLineEdit::textChanged, m_model, &FileListModel::setFilter);
    connect(m_ui->m_pwPbUseAll, &QPushButton::clicked, this, [this] { setShownUsed(true); });
    connect(m_ui->m_pwPbUseNone, &QPushButton::clicked, this, [this] { setShownUsed(false); });
    connect(m_model, &FileListModel::updated, this, &VltAddTexbTexturedPage::updateStatusLabel);
    connect(m_model, &FileListModel::updated, this, &VltAddTexbTexturedPage::showList);
    connect(m_ui->m_pwFiles, &QTableView::customContextMenuRequested, this,
            &VltAddTexbTexturedPage::tablev_customContextMenu);
}

bool VltAddTexbTexturedPage::isComplete() const
{
    return m_model->rowCount() > 0;
}

void VltAddTexbTexturedPage::initializePage()
{
    BasePage::initializePage();
    findBuildings();
}

/// Finds out beside the interface where the buildings are.
void VltAddTexbTexturedPage::findBuildings()
{
    const vlt::buildings::BuildingsSource source =
        vlt::buildings::readBuildingsSource(parameters());
    m_sorted->setBuildings({}, {});
    if (source.file.isEmpty())
        return;
    vlt::wizard::valueBeside<Buildings>(
        this, [source] { return readBuildings(source); },
        [this](const Buildings &buildings) {
            m_sorted->setBuildings(buildings.layer, buildings.extent);
            m_ui->m_pwFiles->viewport()->update();
        });
}

bool VltAddTexbTexturedPage::validatePage()
{
    m_ui->m_pwFiles->setFocus(); // stores a height that is being typed
    saveSettings();
    return true;
}

void VltAddTexbTexturedPage::saveSettings()
{
    const auto settings = vlt::platform::wizardSettings();
    vlt::buildings::change(*settings, LastUsedDirKey, m_lastUsedDir);
    vlt::buildings::writeTextureSettings(
        *settings,
        {m_ui->m_pwCbDataStructure->currentIndex(), m_ui->m_pwLeFilter->text(), m_model->entries()},
        m_stored);
    m_stored = m_model->entries();
    vlt::buildings::publishImages(m_model->entries(), parameters());
}

void VltAddTexbTexturedPage::restoreSettings()
{
    const auto settings = vlt::platform::wizardSettings();
    m_lastUsedDir = settings->value(LastUsedDirKey).toString();
    const vlt::buildings::TextureSettings textures = vlt::buildings::readTextureSettings(*settings);
    const int structures = m_ui->m_pwCbDataStructure->count();
    if (textures.dataStructure >= 0 && textures.dataStructure < structures)
        m_ui->m_pwCbDataStructure->setCurrentIndex(textures.dataStructure);
    m_model->setEntries(textures.files);
    if (textures.isWhole)
        m_stored = textures.files;
    m_ui->m_pwLeFilter->setText(textures.filter);
}

void VltAddTexbTexturedPage::droppedFile(const QString &path)
{
    if (QFileInfo(path).isFile())
        listAround(path);
}

void VltAddTexbTexturedPage::openTemplate()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Select one of the texture files", "MESS_SELECT_TMPT_TEX"), m_lastUsedDir,
        QStringLiteral("%1 (*.*)").arg(tr("Raster Files", "MESS_RASTER_FILES")));
    if (!path.isEmpty())
        listAround(path);
}

void VltAddTexbTexturedPage::listAround(const QString &templatePath)
{
    if (m_isSearching)
        return;
    const QScopedValueRollback searching(m_isSearching, true);
    const QFileInfo file(templatePath);
    const QString dir = file.absolutePath();
    const auto structure =
        static_cast<vlt::buildings::DataStructure>(m_ui->m_pwCbDataStructure->currentIndex());
    using Found = std::optional<QList<FileEntry>>;
    const auto found = vlt::wizard::waitForValue<Found>(
        this, tr("Looking for images...", "MESS_LOOKING_FOR_IMAGES"),
        [structure, dir, suffix = file.suffix()](const vlt::Progress &progress) {
            return vlt::buildings::findTextures(structure, dir, suffix, progress);
        });
    if (!found || !*found) // cancelled
        return;
    m_lastUsedDir = dir;
    m_previews->forget();
    m_model->setEntries(**found);
    if (isListShown())
        fitColumns();
}

void VltAddTexbTexturedPage::updateStatusLabel(int total, int matching, int selected)
{
    using vlt::language::wholeNumber;
    QString text = tr("Images: %1  \u2022  shown: %2  \u2022  used: %3", "MESS_TEXTURE_COUNTS")
                       .arg(wholeNumber(total), wholeNumber(matching), wholeNumber(selected));
    if (total > 0 && matching == 0)
        text += QStringLiteral("  \u2022  ") +
                tr("no image matches the filter", "MESS_NO_TEXTURE_MATCHES");
    m_ui->m_pwLblFilter->setText(text);
}

bool VltAddTexbTexturedPage::isListShown() const
{
    return m_ui->m_pwFiles->model() == m_sorted;
}

/// Shows the images, or a hint if there are none; the filter may hide all images.
void VltAddTexbTexturedPage::showList()
{
    QTableView *table = m_ui->m_pwFiles;
    const bool hasImages = !m_model->entries().isEmpty();
    QAbstractItemModel *shown = m_emptyModel;
    if (hasImages)
        shown = m_sorted;
    if (table->model() != shown) {
        table->setModel(shown);
        m_ui->m_pwInvitation->setVisible(!hasImages);
        table->setMaximumHeight(hasImages ? QWIDGETSIZE_MAX
                                          : 2 * table->verticalHeader()->defaultSectionSize());
        QHeaderView *header = table->horizontalHeader();
        header->setVisible(hasImages);
        // The header forgets the stretching of a section while it is hidden.
        header->setSectionResizeMode(QHeaderView::Interactive);
        header->setSectionResizeMode(hasImages ? int(FileListModel::FileColumn) : 0,
                                     QHeaderView::Stretch);
        m_ui->m_pwPbUseAll->setEnabled(hasImages);
        m_ui->m_pwPbUseNone->setEnabled(hasImages);
        if (hasImages) {
            table->sortByColumn(FileListModel::HeightColumn, Qt::AscendingOrder);
            fitColumns();
        }
    }
    Q_EMIT completeChanged();
}

void VltAddTexbTexturedPage::fitColumns()
{
    QTableView *table = m_ui->m_pwFiles;
    for (const int column :
         {FileListModel::UseColumn, FileListModel::HeightColumn, FileListModel::FolderColumn})
        table->resizeColumnToContents(column);
    table->setColumnWidth(FileListModel::FolderColumn,
                          std::min(table->columnWidth(FileListModel::FolderColumn), MaxFolderPx));
}

void VltAddTexbTexturedPage::setShownUsed(bool used)
{
    QModelIndexList rows;
    for (int row = 0; row < m_model->rowCount(); ++row)
        rows += m_model->index(row, FileListModel::UseColumn);
    m_model->setUsed(rows, used);
}

/// Unticks the selected rows if all of them are ticked, else ticks them.
void VltAddTexbTexturedPage::toggleSelected()
{
    if (!isListShown())
        return;
    QModelIndexList rows =
        m_ui->m_pwFiles->selectionModel()->selectedRows(FileListModel::UseColumn);
    for (QModelIndex &row : rows)
        row = m_sorted->mapToSource(row);
    if (!rows.isEmpty())
        m_model->setUsed(rows, !std::all_of(rows.cbegin(), rows.cend(), isUsed));
}

void VltAddTexbTexturedPage::tablev_customContextMenu(const QPoint &point)
{
    if (isListShown())
        m_menu->popup(m_ui->m_pwFiles->viewport()->mapToGlobal(point));
}

void VltAddTexbTexturedPage::copyToClipboard()
{
    if (isListShown() && m_model->rowCount() > 0)
        QGuiApplication::clipboard()->setText(vlt::wizard::rowsAsText(*m_ui->m_pwFiles));
}

bool VltAddTexbTexturedPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->m_pwFiles && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier) {
            toggleSelected();
            return true;
        }
    }
    return BasePage::eventFilter(watched, event);
}
