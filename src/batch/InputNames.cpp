#include "batch/InputNames.h"

#include <QFileInfo>

namespace vlt::batch {

QString absolutePath(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

qsizetype indexOfName(const QStringList &names, const QString &name)
{
    const qsizetype index = names.indexOf(name);
    if (index >= 0)
        return index;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

} // namespace vlt::batch
