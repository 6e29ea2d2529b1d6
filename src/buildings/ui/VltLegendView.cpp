#include "buildings/ui/VltLegendView.h"

#include "colormaps/ColoredInfoText.h"

#include <QBuffer>
#include <QLabel>

VltLegendView::VltLegendView(QWidget *parent) : QScrollArea(parent), m_text(new QLabel(this))
{
    m_text->setObjectName(QStringLiteral("m_pwLblLegend"));
    m_text->setTextFormat(Qt::RichText);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setWidget(m_text);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    m_text->setAutoFillBackground(false);
}

void VltLegendView::showLegend(const QString &colorMapName, const QString &imagePath)
{
    m_colorMapName = colorMapName;
    m_legend = imagePath.isEmpty() ? QImage() : QImage(imagePath);
    fit();
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
    constexpr double MinShare = 0.75;
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
