#include "batch/InputErrors.h"

#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"

#include <QFileInfo>

namespace vlt::batch {

QString absolutePath(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

Error told(const QString &text, const QString &path)
{
    return {QString(), text, path};
}

Error withReason(const char *key, const char *text, const Error &error, const QString &path)
{
    const QString message = dico_label(key, text);
    return told(error.text.isEmpty() || error.text == QLatin1String(text)
                    ? message
                    : message + QStringLiteral(" (") + language::readerText(error.text) +
                          QLatin1Char(')'),
                path);
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
