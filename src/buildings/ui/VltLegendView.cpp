#include "buildings/ui/VltLegendView.h"

#include "colormaps/ColoredInfoText.h"

#include <QBoxLayout>
#include <QBuffer>
#include <QLabel>
#include <QPushButton>

namespace {

QLabel *richLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::RichText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

} // namespace

VltLegendView::VltLegendView(QWidget *parent)
    : QScrollArea(parent)
    , m_text(richLabel("m_pwLblLegend"))
    , m_summary(richLabel("m_pwLblSummary"))
    , m_pwPbSave(new QPushButton(tr("Save values...", "MESS_SAVE_VALUES")))
{
    m_summary->setWordWrap(true);
    m_pwPbSave->setObjectName(QStringLiteral("m_pwPbSaveValues"));
    m_pwPbSave->setToolTip(tr("Save a list of all buildings with their values, as a "
                              "GeoPackage with the outlines or as a CSV file",
                              "MESS_TIP_SAVE_VALUES"));
    connect(m_pwPbSave, &QPushButton::clicked, this, &VltLegendView::saveRequested);
    auto *content = new QWidget;
    auto *row = new QHBoxLayout(content);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text);
    auto *column = new QVBoxLayout;
    column->addWidget(m_summary);
    column->addWidget(m_pwPbSave, 0, Qt::AlignLeft);
    column->addStretch(1);
    row->addLayout(column, 1);
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    showLegend({}, {});
}

void VltLegendView::showLegend(const QString &colorMapName, const QString &imagePath)
{
    m_colorMapName = colorMapName;
    m_legend = imagePath.isEmpty() ? QImage() : QImage(imagePath);
    m_summary->hide();
    m_pwPbSave->hide();
    fit();
}

void VltLegendView::offerSaving()
{
    m_pwPbSave->show();
}

void VltLegendView::showSummary(const vlt::buildings::ValueSummary &summary)
{
    m_summary->setText(vlt::buildings::summaryInfoText(summary));
    m_summary->setAccessibleName(vlt::buildings::summaryLines(summary).join(QLatin1Char('\n')));
    m_summary->show();
}

void VltLegendView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void VltLegendView::fit()
{
    if (m_legend.isNull()) {
        m_text->clear();
        return;
    }
    constexpr double PixelsPerUnit = 2; // legends are drawn for screens of high density
    constexpr double MinShare = 0.7;
    const int textHeight = 2 * fontMetrics().lineSpacing();
    const QSizeF size = QSizeF(m_legend.size()) / PixelsPerUnit;
    const double share = (height() - textHeight) / size.height();
    const QSize shown = (size * qBound(MinShare, share, 1.0)).toSize();

    // The image is scaled here because a label that shrinks an image skips pixels.
    QByteArray png;
    QBuffer buffer(&png);
    m_legend.scaled(shown * devicePixelRatio(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "PNG");
    const QString image =
        QStringLiteral("data:image/png;base64,") + QString::fromLatin1(png.toBase64());
    m_text->setText(vlt::colormaps::coloredInfoText(m_colorMapName, image, shown));
}
