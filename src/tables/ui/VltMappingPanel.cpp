#include "tables/ui/VltMappingPanel.h"

#include "language/ReaderText.h"
#include "tables/ColumnRoles.h"
#include "tables/ExcerptModel.h"
#include "tables/RoleModel.h"
#include "tables/ui/CopyRows.h"
#include "tables/ui/PanelParts.h"
#include "tables/ui/RoleDelegate.h"
#include "ui_MappingPanel.h"

#include <QDir>
#include <QHeaderView>
#include <QSignalBlocker>

using vlt::tables::ExcerptModel;
using vlt::tables::MappingFile;
using vlt::tables::RoleModel;

namespace {

constexpr int VisibleRoles = 8;
constexpr int VisibleRows = 6;
constexpr int RowMargin = 6;
constexpr int MaxTextCharacters = 30; ///< of a column of long texts
constexpr int MaxNameCharacters = 40; ///< of a column with names of roles: their end counts
constexpr int HeaderDelayMs = 400;

/// Marks the rows of the header; greys those above it.
class ExcerptDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int kind = index.data(ExcerptModel::RowKindRole).toInt();
        if (kind == ExcerptModel::Header || kind == ExcerptModel::BelowHeader)
            option->backgroundBrush = option->palette.alternateBase();
        option->font.setBold(kind == ExcerptModel::Header);
        if (kind == ExcerptModel::Title)
            option->palette.setColor(QPalette::Text,
                                     option->palette.color(QPalette::Disabled, QPalette::Text));
    }
};

/// Makes columns as wide as their contents, but none so wide that it moves the others out of view.
template<typename View>
void fitColumns(View *view, int first, int end, int maxCharacters)
{
    const int most = maxCharacters * view->fontMetrics().averageCharWidth();
    for (int column = first; column < end; ++column) {
        view->resizeColumnToContents(column);
        if (view->columnWidth(column) > most)
            view->setColumnWidth(column, most);
    }
}

QString nameOf(const QModelIndex &entry)
{
    return entry.siblingAtColumn(RoleModel::Role).data().toString();
}

} // namespace

VltMappingPanel::VltMappingPanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::MappingPanel>())
    , m_roles(new RoleModel(this))
    , m_excerpt(new ExcerptModel(this))
{
    m_ui->setupUi(this);
    buildRoles();
    buildExcerpt();
    connectChoices();
}

VltMappingPanel::~VltMappingPanel() = default;

void VltMappingPanel::buildRoles()
{
    QTreeView *view = m_ui->m_pwTrRoles;
    view->setModel(m_roles);
    view->setItemDelegate(new vlt::tables::RoleDelegate(view));
    view->header()->setHighlightSections(false);
    view->header()->setStretchLastSection(true);
    const int rowHeight = view->fontMetrics().height() + 2 * RowMargin;
    view->setMinimumHeight((VisibleRoles + 1) * rowHeight);
    connect(view, &QTreeView::clicked, this, [this](const QModelIndex &index) {
        if (index.column() == RoleModel::Name)
            editRole(index);
    });
    connect(view, &QTreeView::activated, this, &VltMappingPanel::editRole);
}

void VltMappingPanel::buildExcerpt()
{
    QTableView *view = m_ui->m_pwTvExcerpt;
    view->setModel(m_excerpt);
    view->setItemDelegate(new ExcerptDelegate(view));
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + RowMargin);
    view->verticalHeader()->setSectionsClickable(true);
    view->verticalHeader()->setToolTip(
        tr("A click makes this the row with the names of the columns", "MESS_TIP_ROW_NUMBER"));
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view->setMinimumHeight((VisibleRows + 3) * view->verticalHeader()->defaultSectionSize());
    vlt::tables::makeRowsCopyable(view);
}

void VltMappingPanel::connectChoices()
{
    m_ui->m_pwSbHeader->setMaximum(static_cast<int>(vlt::contract::MaxHeaderRow));
    vlt::tables::showWholeTexts(m_ui->m_pwCbSheet);
    m_headerTimer.setSingleShot(true);
    m_headerTimer.setInterval(HeaderDelayMs);
    connect(m_roles, &RoleModel::mappingChosen, this, &VltMappingPanel::chooseLater);
    connect(m_ui->m_pwCbSheet, &QComboBox::textActivated, this, [this](const QString &sheet) {
        if (sheet != m_table.excerpt.sheet)
            chooseLater(vlt::tables::withSheet(m_table.mapping, sheet));
    });
    for (QSpinBox *box : {m_ui->m_pwSbHeader, m_ui->m_pwSbHeaderRows})
        connect(box, &QSpinBox::valueChanged, &m_headerTimer, qOverload<>(&QTimer::start));
    connect(&m_headerTimer, &QTimer::timeout, this, &VltMappingPanel::chooseHeader);
    connect(m_ui->m_pwTvExcerpt->verticalHeader(), &QHeaderView::sectionClicked, this,
            [this](int row) { m_ui->m_pwSbHeader->setValue(m_excerpt->rowNumber(row)); });
    connect(m_ui->m_pwPbSaveMapping, &QPushButton::clicked, this, &VltMappingPanel::savingWanted);
    connect(m_ui->m_pwPbResetMapping, &QPushButton::clicked, this,
            [this] { chooseLater({m_table.kind}); });
}

/// Announces a choice after the widget that was used has finished its work: the table that results
/// takes its contents away.
void VltMappingPanel::chooseLater(const vlt::contract::ColumnMapping &mapping)
{
    vlt::contract::ColumnMapping chosen = mapping;
    chosen.kind = m_table.kind;
    QTimer::singleShot(0, this, [this, chosen] { Q_EMIT mappingChosen(chosen); });
}

void VltMappingPanel::chooseHeader()
{
    const int first = m_ui->m_pwSbHeader->value();
    const int count = first > 0 ? m_ui->m_pwSbHeaderRows->value() : 0;
    const auto changed = vlt::tables::withHeader(m_table.mapping, first, count);
    if (*changed.headerRows != std::vector<std::int64_t>(m_table.excerpt.headerRows.begin(),
                                                         m_table.excerpt.headerRows.end()))
        chooseLater(changed);
}

void VltMappingPanel::editRole(const QModelIndex &index)
{
    QTreeView *view = m_ui->m_pwTrRoles;
    view->setFocus();
    view->edit(index.siblingAtColumn(RoleModel::Name));
}

int VltMappingPanel::columnsFound() const
{
    return m_roles->columnsFound();
}

QSize VltMappingPanel::sizeHint() const
{
    const bool isIgnored = sizePolicy().verticalPolicy() == QSizePolicy::Ignored;
    return isIgnored ? QSize() : QWidget::sizeHint();
}

void VltMappingPanel::showTable(const vlt::tables::UnderstoodTable &table, const MappingFile &file)
{
    QTreeView *view = m_ui->m_pwTrRoles;
    QStringList unfolded;
    for (int row = 0; row < m_roles->rowCount(); ++row) {
        if (const QModelIndex entry = m_roles->index(row, 0); view->isExpanded(entry))
            unfolded << nameOf(entry);
    }
    const QModelIndex current = view->currentIndex();
    const QModelIndex currentEntry = current.parent().isValid() ? current.parent() : current;
    const QString currentName = currentEntry.isValid() ? nameOf(currentEntry) : QString();

    m_table = table;
    m_roles->setTable(table);
    m_excerpt->setTable(table);
    for (int row = 0; row < m_roles->rowCount(); ++row) {
        const QModelIndex entry = m_roles->index(row, 0);
        view->setExpanded(entry, unfolded.contains(nameOf(entry)));
        if (nameOf(entry) == currentName)
            view->setCurrentIndex(entry);
    }
    QString shape = vlt::language::readerText(table.shape);
    if (const QString second = vlt::tables::secondText(table.second); !second.isEmpty())
        shape += QLatin1Char('\n') + second;
    m_ui->m_pwLblShape->setText(shape);
    m_ui->m_pwLblShape->setVisible(!shape.isEmpty());
    fitColumns(view, RoleModel::Role, RoleModel::Name, MaxNameCharacters);
    // the last column takes what is left
    fitColumns(view, RoleModel::Name, RoleModel::Samples, MaxTextCharacters);
    fitColumns(m_ui->m_pwTvExcerpt, 0, m_excerpt->columnCount(), MaxNameCharacters);
    showHeader();
    showMappingFile(file);
}

void VltMappingPanel::showRefused(const MappingFile &file)
{
    vlt::tables::UnderstoodTable table = m_table;
    table.mapping = file.mapping;
    showTable(table, file);
}

/// Shows the sheet and the rows of the header.
void VltMappingPanel::showHeader()
{
    const vlt::geodata::TableExcerpt &excerpt = m_table.excerpt;
    const QSignalBlocker noFirst(m_ui->m_pwSbHeader);
    const QSignalBlocker noCount(m_ui->m_pwSbHeaderRows);
    m_headerTimer.stop();
    m_ui->m_pwCbSheet->clear();
    m_ui->m_pwCbSheet->addItems(excerpt.sheets);
    m_ui->m_pwCbSheet->setCurrentText(excerpt.sheet);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_ui->m_pwLblSheet), static_cast<QWidget *>(m_ui->m_pwCbSheet)})
        widget->setVisible(excerpt.sheets.size() > 1);
    const bool hasHeader = !excerpt.headerRows.isEmpty();
    m_ui->m_pwSbHeader->setValue(hasHeader ? static_cast<int>(excerpt.headerRows.first()) : 0);
    m_ui->m_pwSbHeaderRows->setValue(static_cast<int>(excerpt.headerRows.size()));
    m_ui->m_pwSbHeaderRows->setEnabled(hasHeader);
}

void VltMappingPanel::showMappingFile(const MappingFile &file)
{
    const QString path = QDir::toNativeSeparators(file.path);
    QString text = vlt::language::readerText(file.refusal);
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    else if (file.place == MappingFile::Place::OfUser)
        text = tr("Your choices are kept in %1, which the layer names.", "MESS_MAPPING_OF_USER")
                   .arg(path);
    else if (file.place == MappingFile::Place::BesideTable)
        text = tr("The choices in %1 are used.", "MESS_MAPPING_BESIDE").arg(path);
    m_ui->m_pwLblMapping->setText(text);
    m_ui->m_pwLblMapping->setVisible(!text.isEmpty());
    m_ui->m_pwPbSaveMapping->setEnabled(file.place == MappingFile::Place::OfUser);
    m_ui->m_pwPbResetMapping->setEnabled(!file.refusal.isEmpty() ||
                                         !vlt::tables::statesNothing(file.mapping));
}
