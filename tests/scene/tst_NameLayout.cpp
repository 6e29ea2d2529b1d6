#include "plugins/scene/layers/NameLayout.h"
#include "support/Cases.h"

#include <QtTest>

#include <random>
#include <string>

using namespace vlt::scene;

namespace {

constexpr PictureRect Picture{0, 0, 1000, 800};

/// Something of 20 x 20 pixels with a name of 60 x 16.
NamedRoom at(double x, double y)
{
    return {x, {x - 10, y - 10, x + 10, y + 10}, 60, 16};
}

std::vector<NamedRoom> crowd(int count)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> x(0, 1000);
    std::uniform_real_distribution<double> y(0, 800);
    std::vector<NamedRoom> named;
    for (int i = 0; i < count; ++i)
        named.push_back(at(x(random), y(random)));
    return named;
}

} // namespace

class tst_NameLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void putsNamesNearby_data()
    {
        // left and bottom of the name of the last place, and whether it has a line; 2.4 pixels are
        // the gap
        const Cases<QList<QPointF>, QPointF, bool> row({"places", "corner", "hasLeader"});
        row("above", {{500, 400}}, {470, 412.4}, false);
        row("beside, below another", {{500, 432}, {500, 400}}, {512.4, 392}, false);
        row("below, at the top of the picture", {{545, 788}, {455, 788}, {500, 788}}, {470, 759.6},
            false);
        row("at the left side of the picture", {{15, 400}}, {27.4, 392}, false);
        row("with a line", {{500, 425}, {540, 400}, {460, 400}, {500, 375}, {500, 400}},
            {470, 454.8}, true);
    }

    void putsNamesNearby()
    {
        QFETCH(QList<QPointF>, places);
        QFETCH(QPointF, corner);
        QFETCH(bool, hasLeader);
        std::vector<NamedRoom> named;
        for (const QPointF &place : places) {
            named.push_back(at(place.x(), place.y()));
            if (&place != &places.back())
                named.back().width = 5000; // has no room anywhere
        }

        const auto names = placeNames(named, Picture, NameRule::OnFreeGround, 100);

        QCOMPARE(names.size(), std::size_t{1});
        QCOMPARE(names.back().hasLeader, hasLeader);
        QCOMPARE(names.back().rect.left, corner.x());
        QCOMPARE(names.back().rect.bottom, corner.y());
    }

    void keepsNamesApart_data()
    {
        const Cases<int, NameRule, std::size_t> row({"places", "rule", "budget"});
        row("few", 30, NameRule::OnFreeGround, 1000);
        row("dense", 600, NameRule::OnFreeGround, 1000);
        row("dense, over others", 600, NameRule::OverOthers, 1000);
        row("a budget", 600, NameRule::OverOthers, 20);
    }

    void keepsNamesApart()
    {
        QFETCH(int, places);
        QFETCH(NameRule, rule);
        QFETCH(std::size_t, budget);
        const std::vector<NamedRoom> named = crowd(places);

        const auto names = placeNames(named, Picture, rule, budget);

        QVERIFY2(names.size() >= std::min(budget, std::size_t{20}) && names.size() <= budget,
                 std::to_string(names.size()).c_str());
        for (const PlacedName &name : names) {
            QVERIFY(name.rect.left >= 0 && name.rect.top <= 800);
            for (std::size_t i = 0; i < named.size(); ++i)
                QVERIFY(!name.rect.overlaps(named[i].taken) ||
                        (rule == NameRule::OverOthers && i != name.index));
            for (const PlacedName &other : names)
                QVERIFY(&other == &name || !other.rect.overlaps(name.rect));
        }
        if (rule == NameRule::OverOthers)
            QVERIFY(names.size() >=
                    std::min(budget,
                             placeNames(named, Picture, NameRule::OnFreeGround, budget).size()));
        QVERIFY(names.front().index < 5);
    }
};

QTEST_GUILESS_MAIN(tst_NameLayout)
#include "tst_NameLayout.moc"
