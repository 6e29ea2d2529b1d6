#include "tables/ObjectPage.h"

#include "geodata/TableReport.h"
#include "tables/ResolvedConnection.h"

#include <QFile>
#include <QXmlStreamReader>

namespace vlt::tables {

namespace {

/// The elements of a layer file that are needed.
struct Layer
{
    QString source;
    QString page;
};

Result<Layer> readLayer(const QString &path)
{
    const Error bad{QStringLiteral("MESS_CANT_READ_LAYER"),
                    QStringLiteral("the layer cannot be read"), path};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return bad;
    Layer layer;
    QXmlStreamReader xml(&file);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("veltaroLayer"))
        return bad;
    while (xml.readNextStartElement()) {
        const QString name = xml.name().toString();
        const QString text = xml.readElementText();
        if (name == QLatin1String("source"))
            layer.source = text;
        else if (name == QLatin1String("description"))
            layer.page = text;
    }
    if (xml.hasError() || layer.source.isEmpty())
        return bad;
    return layer;
}

QString listOf(const QList<geodata::FieldValue> &fields)
{
    QString rows;
    for (const geodata::FieldValue &field : fields) {
        if (!field.text.isEmpty())
            rows += QStringLiteral("<tr><td>%1&nbsp;</td><td>%2</td></tr>")
                        .arg(field.name.toHtmlEscaped(), field.text.toHtmlEscaped());
    }
    return QStringLiteral("<table>%1</table>").arg(rows);
}

} // namespace

QString filledPage(const QString &page, const QList<geodata::FieldValue> &fields)
{
    QString filled;
    qsizetype from = 0;
    for (qsizetype at = page.indexOf(QLatin1Char('[')); at >= 0;
         at = page.indexOf(QLatin1Char('['), at + 1)) {
        if (at < from)
            continue;
        const QStringView rest = QStringView(page).mid(at + 1);
        // one name may be the beginning of another one that has brackets
        const geodata::FieldValue *named = nullptr;
        for (const geodata::FieldValue &field : fields) {
            const bool isHere = rest.startsWith(field.name) &&
                                rest.mid(field.name.size()).startsWith(QLatin1Char(']'));
            if (isHere && (!named || field.name.size() > named->name.size()))
                named = &field;
        }
        if (!named)
            continue;
        filled += QStringView(page).mid(from, at - from);
        filled += named->text.toHtmlEscaped();
        from = at + named->name.size() + 2;
    }
    filled += QStringView(page).mid(from);
    return filled;
}

Result<QString> readObjectPage(const QString &layerFile, const QString &projectDirectory,
                               qint64 row)
{
    const Result<Layer> layer = readLayer(layerFile);
    if (!layer)
        return layer.error();
    const auto fields =
        geodata::readTableRow(resolvedConnection(layer.value().source, projectDirectory), row);
    if (!fields)
        return fields.error();
    const QString &page = layer.value().page;
    return page.isEmpty() ? listOf(fields.value()) : filledPage(page, fields.value());
}

Result<qint64> readFirstRow(const QString &layerFile, const QString &projectDirectory, qint64 row)
{
    const Result<Layer> layer = readLayer(layerFile);
    if (!layer)
        return layer.error();
    qint64 first = 0;
    const auto read =
        geodata::readRowReport(resolvedConnection(layer.value().source, projectDirectory), {},
                               [&first, row](const geodata::ReportedRow &reported) {
                                   if (first == 0 && reported.row == row)
                                       first = reported.firstRow;
                               });
    if (read && !*read)
        return read->error();
    return first;
}

} // namespace vlt::tables
