#include "snapshot/ObjectView.h"

#include "language/VltLanguageManager.h"
#include "snapshot/Subject.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

namespace vlt::snapshot {

namespace {

using picking::Kind;
using picking::SceneObjects;

/// Number of letters to insert, remove or replace to make one text of another (Levenshtein).
qsizetype difference(const QString &one, const QString &other)
{
    std::vector<qsizetype> last(static_cast<std::size_t>(other.size()) + 1);
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 0; i < one.size(); ++i) {
        qsizetype corner = last[0]++;
        for (qsizetype j = 0; j < other.size(); ++j) {
            const auto at = static_cast<std::size_t>(j) + 1;
            const qsizetype replaced = corner + (one[i].toLower() == other[j].toLower() ? 0 : 1);
            corner = std::exchange(last[at], std::min({last[at - 1] + 1, last[at] + 1, replaced}));
        }
    }
    return last.back();
}

/// The names that are most similar to a text, at most three.
QStringList similarNames(const SceneObjects &objects, const QString &id)
{
    constexpr std::size_t Most = 3;
    constexpr std::size_t MostCompared = 20000; // a second's work at most
    std::vector<std::pair<qsizetype, QString>> names;
    for (std::size_t i = 0; i < std::min(objects.count(), MostCompared); ++i) {
        const QString name = objects.name(i);
        const qsizetype distance = difference(name, id);
        if (!name.isEmpty() && distance <= std::max<qsizetype>(2, id.size() / 2))
            names.emplace_back(distance, name);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    QStringList similar;
    for (std::size_t i = 0; i < std::min(names.size(), Most); ++i)
        similar << names[i].second;
    return similar;
}

std::optional<std::size_t> find(const SceneObjects &objects, const QString &id)
{
    if (const auto named = objects.named(id); !named.isEmpty())
        return named.first();
    bool isRow = false;
    const qint64 row = id.startsWith(QLatin1Char('#')) ? id.mid(1).toLongLong(&isRow) : 0;
    return isRow ? objects.ofRow(row) : std::nullopt;
}

Error noSuchObject(const ShownObject &object, const QStringList &similar)
{
    const bool isSite = object.kind == Kind::Site;
    Error error(isSite ? QStringLiteral("MESS_SNAP_NO_SITE") : QStringLiteral("MESS_SNAP_NO_LINK"),
                isSite ? QStringLiteral("the layer has no such site")
                       : QStringLiteral("the layer has no such link"),
                {}, object.id);
    if (!similar.isEmpty())
        error.detail = dico_label("MESS_SNAP_SIMILAR", "%1; similar names: %2")
                           .arg(object.id, similar.join(QStringLiteral(", ")));
    return error;
}

} // namespace

std::optional<ShownObject> ShownObject::from(const QString &text)
{
    const qsizetype colon = text.indexOf(QLatin1Char(':'));
    const QString kind = text.left(colon);
    const QString id = text.mid(colon + 1);
    if (colon < 0 || id.isEmpty())
        return std::nullopt;
    if (kind == QLatin1String("site"))
        return ShownObject{Kind::Site, id};
    if (kind == QLatin1String("link"))
        return ShownObject{Kind::Link, id};
    return std::nullopt;
}

Result<ViewPoint> viewOfObject(const osg::Node &scene, const ShownObject &object, double aspect)
{
    const std::optional<SceneObjects> objects = SceneObjects::of(scene);
    if (!objects || objects->kind() != object.kind)
        return noSuchObject(object, {});
    const std::optional<std::size_t> found = find(*objects, object.id);
    if (!found)
        return noSuchObject(object, similarNames(*objects, object.id));
    const bool isLink = object.kind == Kind::Link;
    const Axes axes =
        isLink ? sideAxes(objects->place(*found, 1) - objects->place(*found)) : defaultAxes();
    const Subject subject(objects->extent(*found), aspect, DefaultMargin, axes);
    return subject.from(subject.distance(DefaultFieldDeg), DefaultFieldDeg);
}

} // namespace vlt::snapshot
