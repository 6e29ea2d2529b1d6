#include "readingaids/LegendDrawing.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <QLinearGradient>

#include <algorithm>

namespace vlt::readingaids {

namespace {

constexpr qreal MaxWidthLines = 16;
constexpr qreal SwatchWidth = 1.6; ///< in lines, like the next ones
constexpr qreal SwatchHeight = 0.7;
constexpr qreal RowHeight = 1.25;
constexpr qreal RampHeight = 8;
constexpr qreal PartGap = 0.4;
constexpr int MaxTicks = 6;

/// Draws a legend, or only measures it without a painter.
class LegendPainter
{
public:
    LegendPainter(QPainter *painter, const AidStyle &style, const QPointF &topLeft)
        : m_painter(painter)
        , m_style(style)
        , m_metrics(style.font)
        , m_line(m_metrics.height())
        , m_left(topLeft.x() + style.padding())
        , m_y(topLeft.y() + style.padding())
        , m_right(m_left)
    {}

    void add(const LegendPart &part)
    {
        constexpr qsizetype MaxEntries = 14;
        if (!part.title.isEmpty())
            addText(m_left, part.title, true);
        if (!part.ramp.stops.isEmpty())
            addRamp(part.ramp);
        const qsizetype shown = part.entries.size() > MaxEntries ? MaxEntries - 1 : MaxEntries;
        for (const LegendEntry &entry : part.entries.mid(0, shown))
            addEntry(entry);
        if (part.entries.size() > shown)
            addText(textLeft(),
                    dico_label("MESS_LEGEND_MORE", "%1 more")
                        .arg(language::wholeNumber(part.entries.size() - shown)),
                    false);
        m_y += PartGap * m_line;
    }

    QPointF bottomRight() const
    {
        return {m_right + m_style.padding(), m_y - PartGap * m_line + m_style.padding() / 2};
    }

private:
    qreal textLeft() const { return m_left + (SwatchWidth + 0.5) * m_line; }

    /// A row with a text; the next one is below it.
    void addText(qreal left, const QString &text, bool isTitle)
    {
        QFont font = m_style.font;
        font.setBold(isTitle);
        drawText(left, m_y + RowHeight / 2 * m_line, text, font);
        m_y += RowHeight * m_line;
    }

    void drawText(qreal left, qreal centre, const QString &text, const QFont &font)
    {
        const QFontMetricsF metrics(font);
        const qreal room = m_left + MaxWidthLines * m_line - left;
        const QString shown = metrics.elidedText(text, Qt::ElideRight, room);
        const qreal width = metrics.horizontalAdvance(shown);
        m_right = std::max(m_right, left + width);
        if (!m_painter)
            return;
        m_painter->setFont(font);
        m_painter->setPen(m_style.ink);
        m_painter->drawText(QRectF(left, centre - m_line, width + m_line, 2 * m_line),
                            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    }

    void addEntry(const LegendEntry &entry)
    {
        if (entry.color.isValid() && m_painter) {
            const qreal height = SwatchHeight * m_line;
            const QRectF area(m_left, m_y + (RowHeight * m_line - height) / 2, SwatchWidth * m_line,
                              height);
            fill(area, entry.color);
            frame(area);
        }
        addText(entry.color.isValid() ? textLeft() : m_left, entry.text, false);
    }

    /// What is behind a translucent colour is white, as bright as the ground.
    void fill(const QRectF &area, const QBrush &brush)
    {
        m_painter->setRenderHint(QPainter::Antialiasing, false);
        m_painter->fillRect(area, Qt::white);
        m_painter->fillRect(area, brush);
    }

    void frame(const QRectF &area)
    {
        QColor color = m_style.ink;
        color.setAlphaF(0.5F);
        m_painter->setPen(QPen(color, m_style.hairline()));
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawRect(area);
    }

    void addRamp(const LegendRamp &ramp)
    {
        const QRectF bar(m_left, m_y + m_line / 2, SwatchWidth * m_line, RampHeight * m_line);
        if (m_painter)
            drawRamp(bar, ramp);
        const QList<double> ticks = ramp.ticks(MaxTicks);
        const double step = ramp.isEven() && ticks.size() > 1 ? ticks[1] - ticks[0] : 0;
        for (const double tick : ticks) {
            const qreal y = bar.bottom() - ramp.shareOf(tick) * bar.height();
            if (m_painter) {
                m_painter->setPen(QPen(m_style.ink, m_style.hairline()));
                m_painter->drawLine(QPointF(bar.right(), y),
                                    QPointF(bar.right() + 0.3 * m_line, y));
            }
            drawText(textLeft(), y, step > 0 ? tickText(tick, step) : language::roundNumber(tick),
                     m_style.font);
        }
        m_y = bar.bottom() + m_line / 2;
    }

    void drawRamp(const QRectF &bar, const LegendRamp &ramp)
    {
        fill(bar, ramp.stops.constFirst().color);
        for (qsizetype i = 1; i < ramp.stops.size(); ++i) {
            const LegendRamp::Stop &low = ramp.stops[i - 1];
            const LegendRamp::Stop &high = ramp.stops[i];
            const qreal bottom = bar.bottom() - ramp.shareOf(low.value) * bar.height();
            const qreal top = bar.bottom() - ramp.shareOf(high.value) * bar.height();
            QLinearGradient colors(0, bottom, 0, top);
            colors.setColorAt(0, low.color);
            colors.setColorAt(1, ramp.isGradient ? high.color : low.color);
            fill(QRectF(QPointF(bar.left(), top), QPointF(bar.right(), bottom)), colors);
        }
        frame(bar);
    }

    QPainter *m_painter;
    const AidStyle &m_style;
    QFontMetricsF m_metrics;
    qreal m_line;
    qreal m_left;
    qreal m_y;
    qreal m_right;
};

} // namespace

QSizeF legendSize(const Legend &legend, const AidStyle &style)
{
    LegendPainter measure(nullptr, style, {});
    for (const LegendPart &part : legend)
        measure.add(part);
    const QPointF end = measure.bottomRight();
    return {end.x(), end.y()};
}

void drawLegend(QPainter &painter, const QRectF &area, const Legend &legend, const AidStyle &style)
{
    drawPlate(painter, area, style);
    LegendPainter draw(&painter, style, area.topLeft());
    for (const LegendPart &part : legend)
        draw.add(part);
}

} // namespace vlt::readingaids
