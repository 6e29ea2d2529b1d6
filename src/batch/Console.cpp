#include "batch/Console.h"

#include "language/VltLanguageManager.h"
#include "sites/TableTexts.h"

#include <cstdio>

namespace vlt::batch {

bool printOut(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const std::size_t size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

void printError(const QString &text)
{
    const QByteArray bytes = "vltlayers: " + text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

ExitStatus refuse(const Error &error, const QString &detail)
{
    printError(explain(error, detail));
    return ExitStatus::Refused;
}

QString explain(const Error &error, const QString &detail)
{
    QString text = error.key.isEmpty() ? sites::tableText(error.text)
                                       : dico_label(error.key.toUtf8().constData(),
                                                    error.text.toUtf8().constData());
    if (!error.path.isEmpty())
        text = error.path + QStringLiteral(": ") + text;
    if (!detail.isEmpty())
        text += QStringLiteral(" (") + sites::tableText(detail) + QLatin1Char(')');
    return oneLine(text);
}

QString oneLine(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return text;
}

} // namespace vlt::batch
