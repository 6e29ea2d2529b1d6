#include "links/ProfileChart.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"
#include "links/ClearanceText.h"
#include "links/ProfilePath.h"
#include "readingaids/ViewScale.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace vlt::links {

namespace {

using geodata::LinkProfile;
using language::roundNumber;
using language::shortNumber;
using linkpath::ProfilePoint;

constexpr double MetresPerKm = 1000;
constexpr int PerCent = 100;
const QString Separator = QStringLiteral("  \u2022  ");

QColor mixed(const QColor &color, const QColor &other, double share)
{
    const auto part = [share](double a, double b) {
        return static_cast<float>(a * share + b * (1 - share));
    };
    return QColor::fromRgbF(part(color.redF(), other.redF()), part(color.greenF(), other.greenF()),
                            part(color.blueF(), other.blueF()));
}

/// The drawing of one profile.
class Chart
{
public:
    Chart(QPainter &painter, const QRectF &area, const LinkProfile &profile,
          const ProfileStyle &style)
        : m_painter(painter)
        , m_area(area)
        , m_profile(profile)
        , m_path(profile)
        , m_style(style)
        , m_line(QFontMetricsF(style.font).height())
        , m_status(colorOfClearance(profile.link.clearance.status))
    {}

    /// Returns the area between the axes.
    QRectF draw()
    {
        m_painter.setFont(m_style.font);
        m_painter.fillRect(m_area, m_style.paper);
        layOut();
        if (m_style.hasHeading)
            drawHeading();
        drawAxes();
        m_painter.save();
        m_painter.setClipRect(m_plot);
        if (m_path.hasZone())
            drawZone();
        drawGround();
        m_painter.restore();
        if (m_path.hasLine())
            drawRay();
        if (m_profile.worst)
            drawWorst();
        drawLegend();
        return m_plot;
    }

private:
    QColor ink(double share = 1) const { return mixed(m_style.ink, m_style.paper, share); }
    QColor groundColor() const { return mixed(QColor(0x8a, 0x72, 0x50), m_style.paper, 0.75); }
    QColor bulgeColor() const { return mixed(QColor(0x8a, 0x72, 0x50), m_style.paper, 0.4); }
    QColor zoneColor() const { return mixed(m_status, m_style.paper, 0.3); }
    QPen pen(const QColor &color, double width = 1, Qt::PenStyle style = Qt::SolidLine) const
    {
        return {color, width * std::max(1.0, m_line / 14), style};
    }
    double width(const QString &text) const
    {
        return QFontMetricsF(m_style.font).horizontalAdvance(text);
    }

    QPointF at(double distanceM, double heightM) const
    {
        return {m_plot.left() + m_plot.width() * distanceM / m_path.lengthM(),
                m_plot.bottom() - m_plot.height() * (heightM - m_lowM) / (m_highM - m_lowM)};
    }

    void layOut()
    {
        constexpr double MinRangeM = 10;
        constexpr double MinPlotLines = 5;
        const auto [low, high] = m_path.rangeM();
        const double margin = std::max(MinRangeM, high - low) / 12;
        m_lowM = low - margin;
        m_highM = high + margin;
        layOutLines();
        if (m_plot.height() < MinPlotLines * m_line) {
            m_isShort = true;
            layOutLines();
        }
    }

    /// Leaves space for the texts around the plot; those of a short drawing are fewer.
    void layOutLines()
    {
        const double antennaLines = m_isShort ? 1.3 : 2.2;
        const double headingLines = m_style.hasHeading ? 2.8 : 0;
        const double axisLines = m_isShort ? 1.4 : 2.7; // ticks and unit
        m_plot = m_area.adjusted(0, (antennaLines + headingLines) * m_line, -1.5 * m_line,
                                 -axisLines * m_line);
        m_stepM = readingaids::roundNumberUpTo((m_highM - m_lowM) /
                                               std::clamp(m_plot.height() / m_line / 2, 1.0, 3.0));
        double left = 0;
        for (double tick = firstTick(); tick <= m_highM; tick += m_stepM)
            left = std::max(left, width(roundNumber(tick)));
        m_plot.setLeft(m_area.left() + left + 2 * m_line);
        m_legend = m_isShort ? QList<QList<LegendEntry>>() : legendLines();
        m_plot.setBottom(m_plot.bottom() -
                         LegendLine * m_line * static_cast<double>(m_legend.size()));
    }

    double firstTick() const { return std::ceil(m_lowM / m_stepM) * m_stepM; }

    void text(const QRectF &box, int flags, const QString &text) const
    {
        m_painter.drawText(box, flags | Qt::TextSingleLine | Qt::TextDontClip, text);
    }

    void drawHeading()
    {
        QRectF line(m_area.left() + m_line, m_area.top() + m_line / 3, m_area.width() - 2 * m_line,
                    m_line);
        QFont bold = m_style.font;
        bold.setBold(true);
        m_painter.setPen(ink());
        m_painter.setFont(bold);
        text(line, Qt::AlignLeft, linkTitle(m_profile.link));
        m_painter.setFont(m_style.font);
        line.translate(0, m_line * 1.2);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_status);
        const double side = m_line * 0.6;
        m_painter.drawEllipse(QRectF(line.left(), line.center().y() - side / 2, side, side));
        m_painter.setPen(ink());
        text(line.adjusted(m_line, 0, 0, 0), Qt::AlignLeft,
             QFontMetricsF(m_style.font)
                 .elidedText(profileFigures(m_profile), Qt::ElideRight, line.width() - m_line));
    }

    void drawAxes()
    {
        const double tickSide = m_line / 4;
        for (double tick = firstTick(); tick <= m_highM; tick += m_stepM) {
            const QPointF place = at(0, tick);
            m_painter.setPen(pen(ink(0.15)));
            m_painter.drawLine(place, {m_plot.right(), place.y()});
            m_painter.setPen(ink(0.8));
            text({m_area.left(), place.y() - m_line / 2, m_plot.left() - tickSide - m_area.left(),
                  m_line},
                 Qt::AlignRight | Qt::AlignVCenter, roundNumber(tick));
        }
        const double stepM = readingaids::roundNumberUpTo(m_path.lengthM() / 4);
        for (double tick = 0; tick <= m_path.lengthM() * (1 + 1e-9); tick += stepM) {
            const QPointF place = at(tick, m_lowM);
            m_painter.setPen(pen(ink(0.8)));
            m_painter.drawLine(place, place + QPointF(0, tickSide));
            const QString km = roundNumber(tick / MetresPerKm);
            text({place.x() - 50, place.y() + tickSide, 100, m_line}, Qt::AlignHCenter,
                 m_isShort ? dico_label("MESS_PROFILE_LENGTH", "%1 km").arg(km) : km);
        }
        m_painter.drawLine(m_plot.bottomLeft(), m_plot.bottomRight());
        m_painter.drawLine(m_plot.bottomLeft(), m_plot.topLeft());
        if (!m_isShort)
            text({m_plot.left(), m_plot.bottom() + m_line * 1.25, m_plot.width(), m_line},
                 Qt::AlignRight, dico_label("MESS_PROFILE_DISTANCE", "distance from A (km)"));
        m_painter.save();
        m_painter.translate(m_area.left() + m_line * 0.3, m_plot.bottom());
        m_painter.rotate(-90);
        QString heights = dico_label("MESS_PROFILE_HEIGHT", "m above sea level");
        if (width(heights) > m_plot.height())
            heights = dico_label("MESS_PROFILE_HEIGHT_SHORT", "height (m)");
        text({0, 0, m_plot.height(), m_line}, Qt::AlignHCenter, heights);
        m_painter.restore();
    }

    /// The area between the ground with and without the curvature, and that below both.
    void drawGround()
    {
        QPolygonF raised;
        QPolygonF flat;
        for (const ProfilePoint &point : m_profile.path.points) {
            raised << at(point.distanceM, point.terrainM + m_path.bulgeM(point.distanceM));
            flat << at(point.distanceM, point.terrainM);
        }
        if (raised.isEmpty())
            return;
        const auto filled = [this](QPolygonF top, const QColor &color) {
            top << QPointF(top.last().x(), m_plot.bottom())
                << QPointF(top.first().x(), m_plot.bottom());
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(color);
            m_painter.drawPolygon(top);
        };
        filled(raised, bulgeColor());
        filled(flat, groundColor());
        m_painter.setPen(pen(mixed(groundColor(), m_style.ink, 0.5), 1.2));
        m_painter.drawPolyline(raised);
    }

    QPolygonF zoneLine(double share) const
    {
        QPolygonF line;
        for (int i = 0; i <= ProfilePath::CurvePoints; ++i) {
            const double d = m_path.distanceM(i);
            line << at(d, m_path.lineM(d) + share * m_path.radiusM(d));
        }
        return line;
    }

    void drawZone()
    {
        QPolygonF zone = zoneLine(1);
        const QPolygonF lower = zoneLine(-1);
        std::copy(lower.rbegin(), lower.rend(), std::back_inserter(zone));
        m_painter.setPen(pen(m_status));
        m_painter.setBrush(zoneColor());
        m_painter.drawPolygon(zone);
    }

    void drawRay()
    {
        m_painter.setBrush(Qt::NoBrush);
        if (m_path.hasZone()) {
            m_painter.setPen(pen(ink(), 1, Qt::DashLine));
            m_painter.drawPolyline(zoneLine(-m_profile.rule.share));
        }
        const double lengthM = m_path.lengthM();
        m_painter.setPen(pen(ink(), 1.5));
        m_painter.drawLine(at(0, m_path.lineM(0)), at(lengthM, m_path.lineM(lengthM)));
        for (const int end : {0, 1}) {
            const double d = end * lengthM;
            const auto groundM = end == 0 ? m_profile.path.groundAM : m_profile.path.groundBM;
            m_painter.setPen(pen(ink(), 3));
            m_painter.drawLine(at(d, *groundM), at(d, m_path.lineM(d)));
            drawEnd(end, at(d, m_path.lineM(d)));
        }
    }

    /// Name and heights of an end, in two lines above its antenna.
    void drawEnd(int end, const QPointF &top)
    {
        const geodata::LinkReport &link = m_profile.link;
        const double heightM = *link.ends[static_cast<std::size_t>(end)].heightM;
        const QString site = end == 0 ? link.endA : link.endB;
        const QString letter = end == 0 ? QStringLiteral("A") : QStringLiteral("B");
        QString heights =
            dico_label("MESS_PROFILE_ANTENNA", "antenna %1 m, at %2 m above sea level")
                .arg(shortNumber(heightM, 1), shortNumber(*m_profile.antennaM(end), 1));
        if (!m_profile.path.hasTerrain || width(heights) > m_plot.width() / 2 - m_line)
            heights = dico_label("MESS_PROFILE_ANTENNA_LEVEL", "antenna %1 m")
                          .arg(shortNumber(heightM, 1));
        const int side = end == 0 ? Qt::AlignLeft : Qt::AlignRight;
        const double x = end == 0 ? top.x() : top.x() - m_plot.width() / 2;
        QRectF line(x, m_plot.top() - (m_isShort ? 1.1 : 1.9) * m_line, m_plot.width() / 2, m_line);
        m_painter.setPen(ink());
        text(line, side,
             QFontMetricsF(m_style.font)
                 .elidedText(site.isEmpty()
                                 ? letter
                                 : dico_label("MESS_FILE_REASON", "%1: %2").arg(letter, site),
                             Qt::ElideRight, line.width() - m_line / 2));
        m_painter.setPen(ink(0.8));
        if (!m_isShort)
            text(line.translated(0, 0.9 * m_line), side, heights);
    }

    void drawWorst()
    {
        const linkpath::WorstPoint &worst = *m_profile.worst;
        const QPointF line = at(worst.distanceM, worst.lineM);
        const QPointF ground = at(worst.distanceM, worst.terrainM + worst.bulgeM);
        const double radius = m_line / 3;
        const QColor mark = mixed(m_status, m_style.ink, 0.7);
        m_painter.setPen(pen(mark, 2));
        m_painter.setBrush(m_style.paper);
        m_painter.drawLine(line, ground);
        m_painter.drawEllipse(ground, radius, radius);
        const QString label =
            dico_label("MESS_PROFILE_METRES", "%1 m").arg(shortNumber(worst.clearanceM, 1));
        const double wide = width(label) + m_line / 2;
        const bool isRight = ground.x() + radius + wide < m_plot.right();
        const QRectF box(isRight ? ground.x() + 1.5 * radius : ground.x() - 1.5 * radius - wide,
                         (line.y() + ground.y()) / 2 - m_line / 2, wide, m_line);
        QColor plate = m_style.paper;
        plate.setAlphaF(0.85F);
        m_painter.fillRect(box, plate);
        m_painter.setPen(ink());
        text(box, Qt::AlignCenter, label);
    }

    struct LegendEntry
    {
        QColor fill;
        QPen edge;
        bool isArea = true; ///< false for a line
        QString name;
    };

    QList<LegendEntry> legend() const
    {
        QList<LegendEntry> entries = {
            {groundColor(), Qt::NoPen, true, dico_label("MESS_PROFILE_GROUND", "ground")},
            {bulgeColor(), Qt::NoPen, true,
             dico_label("MESS_PROFILE_BULGE", "curvature of the earth (k = %1)")
                 .arg(roundNumber(m_profile.rule.kFactor, 3))}};
        if (m_path.hasLine())
            entries.append(
                {{}, pen(ink(), 1.5), false, dico_label("MESS_PROFILE_RAY", "line of sight")});
        if (!m_path.hasZone())
            return entries;
        entries.append({zoneColor(), pen(m_status), true,
                        dico_label("MESS_PROFILE_ZONE", "first Fresnel zone")});
        entries.append({{},
                        pen(ink(), 1, Qt::DashLine),
                        false,
                        dico_label("MESS_PROFILE_SHARE", "%1 % of it, to be clear")
                            .arg(shortNumber(m_profile.rule.share * PerCent, 1))});
        return entries;
    }

    double width(const LegendEntry &entry) const { return 2.6 * m_line + width(entry.name); }

    /// The legend in lines that fit below the axes.
    QList<QList<LegendEntry>> legendLines() const
    {
        QList<QList<LegendEntry>> lines = {{}};
        double left = m_plot.width();
        for (const LegendEntry &entry : legend()) {
            if (width(entry) - m_line > left && !lines.constLast().isEmpty()) {
                lines.append(QList<LegendEntry>());
                left = m_plot.width();
            }
            lines.last().append(entry);
            left -= width(entry);
        }
        return lines;
    }

    void drawLegend()
    {
        double top = m_area.bottom() - LegendLine * m_line * static_cast<double>(m_legend.size());
        for (const QList<LegendEntry> &line : std::as_const(m_legend)) {
            double left = m_plot.left();
            for (const LegendEntry &entry : line) {
                drawEntry(entry, {left, top});
                left += width(entry);
            }
            top += LegendLine * m_line;
        }
    }

    void drawEntry(const LegendEntry &entry, const QPointF &place)
    {
        const QRectF sample(place.x(), place.y() + 0.2 * m_line, 1.4 * m_line, 0.6 * m_line);
        m_painter.setPen(entry.edge);
        m_painter.setBrush(entry.fill);
        if (entry.isArea)
            m_painter.drawRect(sample);
        else
            m_painter.drawLine(QPointF(sample.left(), sample.center().y()),
                               QPointF(sample.right(), sample.center().y()));
        m_painter.setPen(ink());
        text({sample.right() + m_line / 3, place.y(), width(entry.name), m_line}, Qt::AlignLeft,
             entry.name);
    }

    static constexpr double LegendLine = 1.3; ///< distance of the legend's lines, in lines of text

    QPainter &m_painter;
    QRectF m_area;
    const LinkProfile &m_profile;
    ProfilePath m_path;
    ProfileStyle m_style;
    double m_line; ///< height of a line of text
    QColor m_status;
    QRectF m_plot;
    QList<QList<LegendEntry>> m_legend;
    double m_lowM = 0;
    double m_highM = 0;
    double m_stepM = 0;     ///< between ticks
    bool m_isShort = false; ///< without legend, unit of the distance and heights of the antennas
};

} // namespace

QString linkTitle(const geodata::LinkReport &link)
{
    const QString ends = link.endA + QStringLiteral(" \u2013 ") + link.endB;
    const bool hasEnds = !link.endA.isEmpty() && !link.endB.isEmpty();
    if (link.name.isEmpty())
        return hasEnds ? ends : dico_label("MESS_PROFILE_ROW", "link of row %1").arg(link.row);
    return hasEnds ? link.name + QStringLiteral(" (%1)").arg(ends) : link.name;
}

QString profileFigures(const LinkProfile &profile)
{
    QStringList figures = {dico_label("MESS_PROFILE_LENGTH", "%1 km")
                               .arg(shortNumber(profile.path.lengthM / MetresPerKm, 3))};
    if (profile.link.frequencyMHz)
        figures << dico_label("MESS_PROFILE_FREQUENCY", "%1 GHz")
                       .arg(roundNumber(*profile.link.frequencyMHz / 1000));
    const linkpath::Clearance &clearance = profile.link.clearance;
    QString status = clearanceText(clearance.status);
    if (profile.path.hasTerrain && clearance.lack != linkpath::Lack::Nothing)
        status += QStringLiteral(" (%1)").arg(lackText(clearance.lack));
    if (profile.path.hasTerrain)
        figures << status;
    else
        figures << dico_label("MESS_PROFILE_LEVEL", "no terrain: the ground is drawn level");
    if (profile.worst)
        figures << worstText(*profile.worst);
    return figures.join(Separator);
}

QRectF drawProfile(QPainter &painter, const QRectF &area, const LinkProfile &profile,
                   const ProfileStyle &style)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plot = Chart(painter, area, profile, style).draw();
    painter.restore();
    return plot;
}

} // namespace vlt::links
