#include "wizard/project/TypedPath.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace vlt::project {

namespace {

QString withoutQuotes(const QString &text)
{
    for (const QChar quote : {QLatin1Char('"'), QLatin1Char('\'')}) {
        if (text.size() > 1 && text.startsWith(quote) && text.endsWith(quote))
            return text.mid(1, text.size() - 2);
    }
    return text;
}

} // namespace

QString typedPath(const QString &text)
{
    if (QFileInfo::exists(text))
        return text;
    const QString path = withoutQuotes(text.trimmed());
    if (const QUrl address(path); address.isLocalFile())
        return address.toLocalFile();
    return path.startsWith(QLatin1String("~/")) ? QDir::homePath() + path.mid(1) : path;
}

} // namespace vlt::project
