#include "colormaps/Legend.h"

#include "colormaps/LegendRows.h"
#include "language/VltLanguageManager.h"

#include <QBuffer>
#include <QDir>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vlt::colormaps {

namespace {

/// Lengths in pixels of the image: pixels of the screen times the scale.
struct Measures
{
    explicit Measures(int scale)
        : line(scale)
        , margin(8 * scale)
        , barWidth(32 * scale)
        , tick(5 * scale)
        , gap(4 * scale)
        , check(4 * scale)
        , swatch(14 * scale)
        , rangeHeight(18 * scale)
        , jointHeight(28 * scale)
        , leastHeight(120 * scale)
        , mostHeight(360 * scale)
        , fontSize(12 * scale)
    {}

    int line, margin, barWidth, tick, gap, check, swatch;
    int rangeHeight; ///< height of a colour range, if there is room
    int jointHeight; ///< height between two values of a gradient, if there is room
    int leastHeight; ///< minimum height of a gradient
    int mostHeight;  ///< its maximum height
    int fontSize;
};

const QColor Ground(Qt::white);
const QColor Ink(0x20, 0x20, 0x20);
const QColor Frame(0x70, 0x70, 0x70);
const QColor Check(0xD8, 0xD8, 0xD8);

QColor toQColor(const Rgba &color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

QString noDataText()
{
    return dico_label("MESS_CMAP_NO_DATA", "No data");
}

/// Height of the bar of colours; a whole number of pixels for every colour range, if possible.
int barHeight(const LegendScale &scale, Interpretation interpretation, const Measures &in)
{
    if (interpretation == Interpretation::Interpolation)
        return std::clamp((scale.count() - 1) * in.jointHeight, in.leastHeight, in.mostHeight);
    if (scale.count() > in.mostHeight)
        return in.mostHeight;
    return scale.count() * std::min(in.rangeHeight, in.mostHeight / scale.count());
}

/// Indices of the values that get a label: all, or an even selection that fits, with both ends.
QList<int> labelledIndexes(int count, int height, int lineHeight)
{
    const int room = std::max(1, height / lineHeight);
    const int shown = count <= room ? count : std::max(2, room);
    QList<int> indexes;
    for (int i = 0; i < shown; ++i)
        indexes.append(
            shown == 1 ? 0 : static_cast<int>(std::lround(double(i) * (count - 1) / (shown - 1))));
    return indexes;
}

/// Draws one legend.
class LegendPainter
{
public:
    LegendPainter(const ColorMap &map, Interpretation interpretation, int scale)
        : m_map(map)
        , m_scale(map, interpretation)
        , m_in(scale)
        , m_height(barHeight(m_scale, interpretation, m_in))
    {
        m_font.setPixelSize(m_in.fontSize);
        const QFontMetrics metrics(m_font);
        m_lineHeight = metrics.height();
        int textWidth = m_map.noDataColor() ? metrics.horizontalAdvance(noDataText()) : 0;
        m_labelled = labelledIndexes(m_scale.count(), m_height, m_lineHeight);
        for (const int index : m_labelled)
            textWidth = std::max(textWidth, metrics.horizontalAdvance(m_scale.label(index)));
        m_top = m_in.margin + m_lineHeight / 2;
        m_textLeft = m_in.margin + m_in.barWidth + m_in.tick + m_in.gap;
        m_width = m_textLeft + textWidth + m_in.margin;
    }

    QImage draw()
    {
        const int below = m_map.noDataColor() ? m_in.margin + m_lineHeight : 0;
        QImage image(wholePixels(m_width),
                     wholePixels(m_top + m_height + m_lineHeight / 2 + below + m_in.margin),
                     QImage::Format_RGB32);
        image.fill(Ground);
        QPainter painter(&image);
        painter.setFont(m_font);
        drawBar(painter);
        drawLabels(painter);
        if (m_map.noDataColor())
            drawNoData(painter);
        return image;
    }

private:
    /// Rounds up to whole pixels of the screen; otherwise the image would be blurred when shown.
    int wholePixels(int length) const
    {
        const int pixel = m_in.line;
        return (length + pixel - 1) / pixel * pixel;
    }

    void drawChecks(QPainter &painter, const QRect &area) const
    {
        painter.save();
        painter.setClipRect(area);
        for (int y = 0; y * m_in.check < area.height(); ++y) {
            for (int x = y % 2; x * m_in.check < area.width(); x += 2)
                painter.fillRect(area.left() + x * m_in.check, area.top() + y * m_in.check,
                                 m_in.check, m_in.check, Check);
        }
        painter.restore();
    }

    void drawFrame(QPainter &painter, const QRect &area) const
    {
        const int line = m_in.line;
        const QRect outer = area.adjusted(-line, -line, line, line);
        painter.fillRect(outer.left(), outer.top(), outer.width(), line, Frame);
        painter.fillRect(outer.left(), outer.bottom() + 1 - line, outer.width(), line, Frame);
        painter.fillRect(outer.left(), outer.top(), line, outer.height(), Frame);
        painter.fillRect(outer.right() + 1 - line, outer.top(), line, outer.height(), Frame);
    }

    void drawBar(QPainter &painter) const
    {
        const QRect area(m_in.margin, m_top, m_in.barWidth, m_height);
        drawChecks(painter, area);
        for (int row = 0; row < m_height; ++row) {
            const double share = (m_height - row - 0.5) / m_height;
            painter.fillRect(area.left(), area.top() + row, area.width(), 1,
                             toQColor(m_scale.colorAt(share)));
        }
        drawFrame(painter, area);
    }

    void drawText(QPainter &painter, int centre, const QString &text) const
    {
        painter.setPen(Ink);
        painter.drawText(
            QRect(m_textLeft, centre - m_lineHeight, m_width - m_textLeft, 2 * m_lineHeight),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine, text);
    }

    void drawLabels(QPainter &painter) const
    {
        for (const int index : m_labelled) {
            const int up = static_cast<int>(std::lround(m_scale.labelShare(index) * m_height));
            const int y = m_top + m_height - up;
            painter.fillRect(m_in.margin + m_in.barWidth + m_in.line, y, m_in.tick, m_in.line,
                             Frame);
            drawText(painter, y, m_scale.label(index));
        }
    }

    void drawNoData(QPainter &painter) const
    {
        const int centre = m_top + m_height + m_lineHeight + m_in.margin;
        const QRect area(m_in.margin, centre - m_in.swatch / 2, m_in.barWidth, m_in.swatch);
        drawChecks(painter, area);
        painter.fillRect(area, toQColor(*m_map.noDataColor()));
        drawFrame(painter, area);
        drawText(painter, centre, noDataText());
    }

    const ColorMap &m_map;
    LegendScale m_scale;
    Measures m_in;
    int m_height;
    QFont m_font;
    int m_lineHeight = 0;
    int m_top = 0;
    int m_textLeft = 0;
    int m_width = 0;
    QList<int> m_labelled;
};

} // namespace

QImage drawLegend(const ColorMap &map, Interpretation interpretation, int scale)
{
    // Without QGuiApplication there are no fonts, and drawing a text would end the program.
    if (map.associations().empty() || !qobject_cast<QGuiApplication *>(qApp))
        return {};
    return LegendPainter(map, interpretation, std::max(1, scale)).draw();
}

QImage drawLegend(const QList<LegendKind> &kinds, int scale)
{
    if (kinds.isEmpty() || !qobject_cast<QGuiApplication *>(qApp))
        return {};
    constexpr int MaxCharacters = 40;
    const Measures in(std::max(1, scale));
    QFont font;
    font.setPixelSize(in.fontSize);
    const QFontMetrics metrics(font);
    const int widest = MaxCharacters * metrics.averageCharWidth();
    const int row = std::max(metrics.height(), in.swatch) + in.gap;
    int textWidth = 0;
    for (const LegendKind &kind : kinds)
        textWidth = std::max(textWidth, metrics.horizontalAdvance(kind.name));
    const int textLeft = in.margin + in.barWidth + in.tick + in.gap;
    const auto whole = [&in](int length) { return (length + in.line - 1) / in.line * in.line; };
    QImage image(whole(textLeft + std::min(textWidth, widest) + in.margin),
                 whole(2 * in.margin + static_cast<int>(kinds.size()) * row), QImage::Format_RGB32);
    image.fill(Ground);
    QPainter painter(&image);
    painter.setFont(font);
    int top = in.margin;
    for (const LegendKind &kind : kinds) {
        const QRect area(in.margin, top + (row - in.swatch) / 2, in.barWidth, in.swatch);
        painter.fillRect(area, Frame);
        painter.fillRect(area.adjusted(in.line, in.line, -in.line, -in.line), toQColor(kind.color));
        painter.setPen(Ink);
        painter.drawText(QRect(textLeft, top, image.width() - textLeft, row),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(kind.name, Qt::ElideRight, widest));
        top += row;
    }
    return image;
}

QString legendPath(const QString &directory, const QString &colorMapName)
{
    return QDir(directory).filePath(colorMapName + QStringLiteral("_gradient.png"));
}

Result<QString> writeLegend(const QImage &legend, const QString &directory,
                            const QString &colorMapName, platform::Access access)
{
    const QString path = legendPath(directory, colorMapName);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !legend.save(&buffer, "PNG"))
        return Error::fromLibrary(QStringLiteral("There is no legend to write"), path);
    const Result<Done> written = platform::writeWhole(path, bytes, access);
    if (!written)
        return written.error();
    return path;
}

} // namespace vlt::colormaps
