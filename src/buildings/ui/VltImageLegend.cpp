#include "buildings/ui/VltImageLegend.h"

#include "buildings/ui/ImagePreviews.h"
#include "text/RichText.h"

#include <QAbstractListModel>
#include <QIcon>
#include <QLocale>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

using vlt::buildings::FileEntry;
using vlt::buildings::ImagePreviews;

namespace {

constexpr int PicturePx = 44;
constexpr int MarginPx = 6;
constexpr int Digits = 6;

} // namespace

class VltImageLegend::Model : public QAbstractListModel
{
public:
    explicit Model(VltImageLegend *legend) : QAbstractListModel(legend), m_legend(legend)
    {
        connect(&m_previews, &ImagePreviews::arrived, legend->viewport(),
                qOverload<>(&QWidget::update));
    }

    void setImages(QList<FileEntry> images)
    {
        beginResetModel();
        m_images = std::move(images);
        std::stable_sort(
            m_images.begin(), m_images.end(),
            [](const FileEntry &a, const FileEntry &b) { return a.height < b.height; });
        m_previews.forget();
        endResetModel();
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_images.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid())
            return {};
        const FileEntry &image = m_images.at(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return QLocale().toString(image.height, 'g', Digits) + QStringLiteral(" m");
        case Qt::DecorationRole:
            return icon(image);
        case Qt::SizeHintRole: // the same before and after the picture is read
            return m_legend->gridSize();
        case Qt::ToolTipRole:
            return tip(image);
        default:
            return {};
        }
    }

private:
    QIcon icon(const FileEntry &image) const
    {
        const ImagePreviews::Preview *known = m_previews.of(image.file.filePath());
        if (!known || (known->picture.isNull() && known->problem.isEmpty())) {
            QPixmap none(PicturePx, PicturePx);
            none.fill(Qt::transparent);
            return QIcon(none);
        }
        return known->problem.isEmpty() ? QIcon(QPixmap::fromImage(known->picture))
                                        : static_cast<QWidget *>(QObject::parent())
                                              ->style()
                                              ->standardIcon(QStyle::SP_MessageBoxWarning);
    }

    QString tip(const FileEntry &image) const
    {
        QStringList lines{image.fileName(), image.description};
        if (const ImagePreviews::Preview *known = m_previews.of(image.file.filePath()))
            lines += known->problem;
        lines.removeAll(QString());
        return vlt::text::asRichText(lines.join(u'\n'));
    }

    VltImageLegend *m_legend;
    QList<FileEntry> m_images;
    mutable ImagePreviews m_previews;
};

VltImageLegend::VltImageLegend(QWidget *parent) : QListView(parent), m_images(new Model(this))
{
    setModel(m_images);
    setViewMode(IconMode);
    setFlow(LeftToRight);
    setWrapping(false);
    setMovement(Static);
    setSelectionMode(NoSelection);
    setIconSize({PicturePx, PicturePx});
    const int width =
        std::max(PicturePx, fontMetrics().horizontalAdvance(QStringLiteral("0000.00 m")));
    setGridSize({width + MarginPx, PicturePx + fontMetrics().height() + MarginPx});
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAcceptDrops(false);
    hide();
}

void VltImageLegend::setImages(QList<FileEntry> images)
{
    setVisible(!images.isEmpty());
    m_images->setImages(std::move(images));
}

QSize VltImageLegend::sizeHint() const
{
    return {gridSize().width(),
            gridSize().height() + 2 * frameWidth() + horizontalScrollBar()->sizeHint().height()};
}

QSize VltImageLegend::minimumSizeHint() const
{
    return sizeHint();
}
