#include "app/ReadablePalette.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace vlt::app {

namespace {

constexpr double WantedContrast = 4.5; ///< that of the guidelines for accessible content, level AA

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor mixed(const QColor &from, const QColor &to, float share)
{
    const auto part = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

/// The first color on the way to another one that is readable on all grounds; else that one.
QColor firstReadable(const QColor &from, const QColor &to, float share,
                     std::initializer_list<QColor> grounds)
{
    constexpr float Step = 0.02F;
    for (; share < 1; share += Step) {
        const QColor tried = mixed(from, to, share);
        if (std::all_of(grounds.begin(), grounds.end(), [&tried](const QColor &ground) {
                return contrast(tried, ground) >= WantedContrast;
            }))
            return tried;
    }
    return to;
}

} // namespace

QPalette readableHints(const QPalette &desktop)
{
    const QColor fields = desktop.color(QPalette::Base);
    const QColor page = desktop.color(QPalette::Window);
    const QColor text = desktop.color(QPalette::Text);
    QPalette palette;
    palette.setColor(QPalette::PlaceholderText, firstReadable(fields, text, 0.5F, {fields}));
    for (const QPalette::ColorRole link : {QPalette::Link, QPalette::LinkVisited})
        palette.setColor(link, firstReadable(desktop.color(link), text, 0, {fields, page}));
    return palette;
}

} // namespace vlt::app
