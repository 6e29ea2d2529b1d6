#include "batch/LinkProfilePicture.h"

#include "batch/Suggestion.h"
#include "language/VltLanguageManager.h"
#include "links/ProfileChart.h"

#include <QBuffer>
#include <QImage>
#include <QSvgGenerator>

namespace vlt::batch {

namespace {

constexpr QSize SizePx(1280, 640);
constexpr int FontPx = 17;

bool isSvg(const QString &output)
{
    return output.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

QString nameOf(const geodata::LinkReport &link)
{
    return link.name.isEmpty() ? link.endA + QStringLiteral(" - ") + link.endB : link.name;
}

void draw(QPaintDevice &device, const geodata::LinkProfile &profile)
{
    links::ProfileStyle style;
    style.font.setPixelSize(FontPx);
    QPainter painter(&device);
    links::drawProfile(painter, QRectF(QPointF(), SizePx), profile, style);
}

} // namespace

bool isProfileName(const QString &output)
{
    return isSvg(output) || output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
}

Result<geodata::LinkReport> linkNamed(const QString &name, const QList<geodata::LinkReport> &links)
{
    const bool isRow = name.startsWith(QLatin1Char('#'));
    const qint64 row = isRow ? QStringView(name).mid(1).toLongLong() : 0;
    QList<geodata::LinkReport> found;
    QStringList names;
    for (const geodata::LinkReport &link : links) {
        names << nameOf(link);
        if (isRow ? link.row == row : nameOf(link) == name)
            found << link;
    }
    if (found.isEmpty())
        return Error::asIs(dico_label("MESS_CLI_NO_SUCH_LINK", "there is no link '%1'%2")
                               .arg(name, isRow ? QString() : didYouMean(name, names)));
    if (found.size() == 1)
        return found.constFirst();
    QStringList rows;
    for (const geodata::LinkReport &link : found)
        rows << QStringLiteral("#%1").arg(link.row);
    return Error::asIs(
        dico_label("MESS_CLI_SAME_LINKS", "several links have the name '%1': give one of %2")
            .arg(name, rows.join(QLatin1Char(' '))));
}

QByteArray profilePicture(const geodata::LinkProfile &profile, const QString &output)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (isSvg(output)) {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setSize(SizePx);
        generator.setViewBox(QRect(QPoint(), SizePx));
        generator.setTitle(links::linkTitle(profile.link));
        generator.setDescription(links::profileFigures(profile));
        draw(generator, profile);
    } else {
        QImage picture(SizePx, QImage::Format_RGB32);
        draw(picture, profile);
        picture.save(&buffer, "PNG");
    }
    return bytes;
}

} // namespace vlt::batch
