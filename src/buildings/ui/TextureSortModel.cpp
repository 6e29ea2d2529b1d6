#include "buildings/ui/TextureSortModel.h"

#include "buildings/FileListModel.h"
#include "buildings/SourceSummary.h"
#include "buildings/ui/ImagePreviews.h"
#include "text/RichText.h"

namespace vlt::buildings {

namespace {

/// The system's locale, but never the C locale, which compares bytes and ignores the collator's
/// options.
QLocale collatingLocale()
{
    return QLocale() == QLocale::c() ? QLocale(QLocale::English) : QLocale();
}

} // namespace

TextureSortModel::TextureSortModel(ImagePreviews &previews, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_collator(collatingLocale())
    , m_previews(previews)
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    setDynamicSortFilter(false);
}

void TextureSortModel::setBuildings(std::optional<geodata::PolygonLayer> layer,
                                    std::optional<geodata::Extent> extent)
{
    m_layer = std::move(layer);
    m_extent = extent;
}

QVariant TextureSortModel::ofImage(const QModelIndex &index, int role) const
{
    const QString name = QSortFilterProxyModel::data(
                             index.siblingAtColumn(FileListModel::FileColumn), Qt::ToolTipRole)
                             .toString();
    const ImagePreviews::Preview *image = m_previews.of(name);
    if (!image)
        return {};
    switch (role) {
    case PictureRole:
        return image->picture;
    case HasProblemRole:
        return !image->summary || !image->summary->extent;
    default:
        return image->summary
                   ? imageSummary(*image->summary, m_layer ? &*m_layer : nullptr, m_extent)
                   : image->problem;
    }
}

QVariant TextureSortModel::data(const QModelIndex &index, int role) const
{
    if (role >= PictureRole && role <= HasProblemRole)
        return ofImage(index, role);
    QVariant value = QSortFilterProxyModel::data(index, role);
    if (role != Qt::ToolTipRole)
        return value;
    QStringList lines = {value.toString()};
    if (index.column() == FileListModel::FileColumn ||
        index.column() == FileListModel::FolderColumn)
        lines.prepend(index.data().toString());
    if (index.column() == FileListModel::FileColumn)
        lines += ofImage(index, NoteRole).toString();
    lines.removeAll(QString());
    return lines.isEmpty() ? QVariant() : text::asRichText(lines.join(u'\n'));
}

bool TextureSortModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    switch (left.column()) {
    case FileListModel::UseColumn:
        return left.data(Qt::CheckStateRole).toInt() > right.data(Qt::CheckStateRole).toInt();
    case FileListModel::HeightColumn:
        return left.data().toDouble() < right.data().toDouble();
    default:
        return m_collator.compare(left.data().toString(), right.data().toString()) < 0;
    }
}

} // namespace vlt::buildings
