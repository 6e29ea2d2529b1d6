#include "app/ReadablePalette.h"

#include <algorithm>
#include <cmath>

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

} // namespace

QPalette readableHints(const QPalette &desktop)
{
    constexpr float Step = 0.02F;
    const QColor ground = desktop.color(QPalette::Base);
    const QColor text = desktop.color(QPalette::Text);
    QColor hint = text;
    for (float share = 0.5F; share < 1; share += Step) {
        const QColor tried = mixed(ground, text, share);
        if (contrast(tried, ground) >= WantedContrast) {
            hint = tried;
            break;
        }
    }
    QPalette palette;
    palette.setColor(QPalette::PlaceholderText, hint);
    return palette;
}

} // namespace vlt::app
