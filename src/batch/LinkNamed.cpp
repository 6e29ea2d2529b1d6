#include "batch/LinkNamed.h"

#include "batch/Suggestion.h"
#include "language/VltLanguageManager.h"

namespace vlt::batch {

namespace {

QString nameOf(const geodata::LinkReport &link)
{
    return link.name.isEmpty() ? link.endA + QStringLiteral(" - ") + link.endB : link.name;
}

} // namespace

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

} // namespace vlt::batch
