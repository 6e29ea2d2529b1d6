#include "buildings/ui/BuildingCard.h"

#include "contract/SceneLegend.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <QColor>

#include <algorithm>

namespace vlt::buildings {

namespace {

namespace legend = contract::legend;

QString row(const QString &label, const QString &value)
{
    return QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(label.toHtmlEscaped(), value);
}

QString metres(double lengthM)
{
    return language::shortNumber(lengthM, 1) + QStringLiteral("\u00a0m");
}

/// A patch of a colour with its name, as on the pages.
QString patch(const osg::Vec4ub &color)
{
    const QString name = QColor(color.r(), color.g(), color.b()).name().toUpper();
    return QStringLiteral("<font color=\"%1\">\u2588\u2588\u2588</font>&nbsp;%1").arg(name);
}

QString colorRows(const osg::Vec4ub &wall, const osg::Vec4ub &roof)
{
    if (wall == roof)
        return row(dico_label("MESS_CARD_COLOR", "Color"), patch(wall));
    return row(dico_label("MESS_CARD_WALLS", "Walls"), patch(wall)) +
           row(dico_label("MESS_CARD_ROOF", "Roof"), patch(roof));
}

/// The row of the value that colours a building; empty if its colour is no value's.
QString valueRow(const picking::SceneObjects &buildings, std::size_t building,
                 std::string_view legendText)
{
    const std::vector<legend::Row> rows = legend::rowsOf(legendText);
    const auto head = std::find_if(rows.begin(), rows.end(), [](const legend::Row &one) {
        return one.kind == legend::Map || one.kind == legend::Field;
    });
    if (head == rows.end())
        return {};
    const auto text = [&head](std::size_t index) {
        return index < head->texts.size() ? QString::fromStdString(head->texts[index]) : QString();
    };
    const bool isMap = head->kind == legend::Map;
    const QString none = dico_label("MESS_CARD_NO_VALUE", "no value");
    QString value = buildings.name(building).toHtmlEscaped();
    if (const std::optional<double> number = buildings.value(building)) {
        value = language::roundNumber(*number);
        if (isMap && !text(2).isEmpty())
            value += QChar(QChar::Nbsp) + text(2).toHtmlEscaped();
    }
    return row(isMap ? text(1) : text(0), value.isEmpty() ? none : value);
}

} // namespace

QString buildingCard(const picking::SceneObjects &buildings, std::size_t building,
                     std::string_view legend)
{
    const double heightM = buildings.sizeM(building);
    const double baseM = buildings.place(building).z() - heightM;
    return QStringLiteral("<h1>%1</h1><table>%2</table>")
        .arg(dico_label("MESS_CARD_BUILDING", "Building %1")
                 .arg(language::wholeNumber(buildings.row(building) + 1))
                 .toHtmlEscaped(),
             row(dico_label("MESS_CARD_HEIGHT", "Height"), metres(heightM)) +
                 row(dico_label("MESS_CARD_GROUND", "Ground"), metres(baseM)) +
                 valueRow(buildings, building, legend) +
                 colorRows(buildings.wallColor(building), buildings.roofColor(building)));
}

} // namespace vlt::buildings
