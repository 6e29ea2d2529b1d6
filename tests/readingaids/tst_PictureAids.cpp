#include "readingaids/PictureAids.h"
#include "support/Cases.h"

#include <QGuiApplication>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace vlt::readingaids;

namespace {

const QColor Paper(120, 150, 110);

ViewCamera cameraFrom(double bearingDeg)
{
    const double bearing = bearingDeg / 180 * M_PI;
    return {{-300 * std::sin(bearing), -300 * std::cos(bearing), 400}, {}, {0, 0, 1}, 30};
}

/// Parts of a picture that differ from its paper.
QRect drawnIn(const QImage &picture, const QRect &part)
{
    QRect drawn;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (picture.pixelColor(x, y) != Paper)
                drawn |= QRect(x, y, 1, 1);
        }
    }
    return drawn;
}

} // namespace

class tst_PictureAids : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointsToTheNorth_data()
    {
        const Cases<double, double> row({"bearing", "angle"}); // clockwise from up
        row("to the north", 0, 0);
        row("to the east", 90, -90);
        row("to the south-west", 225, 135);
    }
    void pointsToTheNorth()
    {
        QFETCH(double, bearing);
        QFETCH(double, angle);
        QImage picture(1600, 1200, QImage::Format_RGB888);
        picture.fill(Paper);
        drawAids(picture, {{}, true}, cameraFrom(bearing), 0);

        // the red half of the needle is left of its direction
        const QRect plate = drawnIn(picture, {1400, 0, 200, 200});
        QPointF red;
        int count = 0;
        for (int y = plate.top(); y <= plate.bottom(); ++y) {
            for (int x = plate.left(); x <= plate.right(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                if (color.red() > 180 && color.blue() < 60) {
                    red += QPointF(x, y);
                    ++count;
                }
            }
        }
        QVERIFY(count > 50);
        const QPointF left = red / count - QRectF(plate).center();
        const double seen = std::atan2(left.x(), -left.y()) * 180 / M_PI;
        // it is below the centre of the plate, too: more to the left-rear than to the left
        const double off = std::remainder(seen - angle, 360);
        QVERIFY2(off < -100 && off > -170, qPrintable(QString::number(off)));
    }

    void keepsToTheEdges_data()
    {
        const Cases<QSize, bool> row({"size", "isLongTitle"});
        row("large", QSize(4000, 3000));
        row("long title", QSize(640, 480), true);
        row("tiny", QSize(160, 120), true);
    }
    void keepsToTheEdges()
    {
        QFETCH(QSize, size);
        QFETCH(bool, isLongTitle);
        QImage picture(size, QImage::Format_RGB888);
        picture.fill(Paper);
        const QString title = isLongTitle ? u"All sites of the region "_s.repeated(20) : u"Sites"_s;
        drawAids(picture, {title, true}, cameraFrom(0), 0);

        QRect middle(QPoint(), size / 2);
        middle.moveCenter(picture.rect().center());
        QVERIFY(drawnIn(picture, middle).isEmpty());
        const int half = size.width() / 2;
        const QRect corner(0, 0, half, size.height() / 2);
        for (const QPoint &at : {QPoint(0, 0), QPoint(half, 0), QPoint(0, size.height() / 2)}) {
            const QRect drawn = drawnIn(picture, corner.translated(at));
            QVERIFY(!drawn.isEmpty());
            QVERIFY(picture.rect().adjusted(1, 1, -1, -1).contains(drawn));
        }
    }
};

QTEST_MAIN(tst_PictureAids)
#include "tst_PictureAids.moc"
