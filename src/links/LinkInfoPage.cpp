#include "links/LinkInfoPage.h"

#include "tables/InfoPageParts.h"
#include "text/Templates.h"

#include <QRegularExpression>

#include <array>

namespace vlt::links {

namespace {

/// A row of the table of the two ends.
struct EndRow
{
    const char *placeholder;
    QString LinkEndColumns::*member;
    const char16_t *french;
    const char16_t *english;
};

constexpr std::array<EndRow, 9> EndRows = {{
    {"__ID__", &LinkEndColumns::identifier, u"Site", u"Site"},
    {"__LON__", &LinkEndColumns::longitude, u"Longitude", u"Longitude"},
    {"__LAT__", &LinkEndColumns::latitude, u"Latitude", u"Latitude"},
    {"__HEIGHT__", &LinkEndColumns::height, u"Hauteur", u"Height"},
    {"__FREQUENCY__", &LinkEndColumns::frequency, u"Fr\u00e9quence", u"Frequency"},
    {"__AZIMUTH__", &LinkEndColumns::azimuth, u"Azimuth", u"Azimuth"},
    {"__TILT__", &LinkEndColumns::tilt, u"Inclinaison", u"Tilt"},
    {"__DX__", &LinkEndColumns::dx, u"DX", u"DX"},
    {"__DY__", &LinkEndColumns::dy, u"DY", u"DY"},
}};

/// A cell with a value of the whole link: its label, the field reference and the unit.
QString linkCell(const QString &label, const QString &column, const QString &unit)
{
    if (column.isEmpty())
        return {};
    const QString unitText = unit.isEmpty() ? QString() : QLatin1Char(' ') + unit;
    return QStringLiteral("<td><small>") + label + QStringLiteral("</small> ") +
           tables::fieldReference(column) + unitText + QStringLiteral("</td>");
}

/// The unit in parentheses or brackets in a column's name, such as "m" in "Antenna height (m) 1".
/// The name of an end, as in "Height (A)", is not a unit.
QString unitIn(const QString &column)
{
    static const QRegularExpression unit(
        QStringLiteral(R"([([](?!(?:A|B|TX|RX)[)\]])([^()[\]\d]+)[)\]])"),
        QRegularExpression::CaseInsensitiveOption);
    return unit.match(column).captured(1);
}

/// The head of a row of the two ends, with the unit if both have the same.
QString rowHead(const QString &label, const QString &tx, const QString &rx)
{
    const QString unit = unitIn(tx.isEmpty() ? rx : tx);
    const bool isCommon = !unit.isEmpty() && (rx.isEmpty() || unitIn(rx) == unit);
    return isCommon ? label + QStringLiteral(" (") + unit + QLatin1Char(')') : label;
}

/// The heading of a link: its name, else its ends.
QString heading(const LinkColumnSet &columns)
{
    QStringList references;
    for (const QString &column : columns.name.isEmpty()
                                     ? QStringList{columns.tx.identifier, columns.rx.identifier}
                                     : QStringList{columns.name}) {
        if (!column.isEmpty())
            references << tables::fieldReference(column);
    }
    return references.join(QStringLiteral(" \u2013 "));
}

} // namespace

QString fillLinkInfoPage(const QString &pageTemplate, const QString &language,
                         const LinkColumnSet &columns)
{
    const bool french = tables::isFrench(language);
    const auto label = [french](const char16_t *inFrench, const char16_t *inEnglish) {
        return QString::fromUtf16(french ? inFrench : inEnglish);
    };
    std::vector<text::Replacement> fill = {
        {QStringLiteral("__NAME__"), heading(columns)},
        {QStringLiteral("__BAND__"), linkCell(label(u"Bande de fr\u00e9quences", u"Frequency band"),
                                              columns.band, columns.frequencyUnit)},
        {QStringLiteral("__LENGTH__"),
         linkCell(label(u"Longueur", u"Length"), columns.length, columns.lengthUnit)}};
    for (const EndRow &row : EndRows) {
        const QString &tx = columns.tx.*row.member;
        const QString &rx = columns.rx.*row.member;
        fill.emplace_back(
            QString::fromLatin1(row.placeholder),
            tables::tableRow(rowHead(label(row.french, row.english), tx, rx), {tx, rx}));
    }
    return text::replacePlaceholders(pageTemplate, fill);
}

Result<QString> buildLinkInfoHtml(const QString &connection, const QString &language,
                                  const QString &installDir, const QString &projectDirectory)
{
    return buildLinkInfoHtml(recogniseLinkColumns(connection, projectDirectory), language,
                             installDir);
}

Result<QString> buildLinkInfoHtml(const LinkColumnSet &columns, const QString &language,
                                  const QString &installDir)
{
    const Result<QString> page =
        tables::readInfoTemplate(installDir, QStringLiteral("links_infos"), language);
    if (!page)
        return page.error();
    return fillLinkInfoPage(page.value(), language, columns);
}

} // namespace vlt::links
