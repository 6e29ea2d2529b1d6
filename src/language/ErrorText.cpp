#include "language/ErrorText.h"

#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"

namespace vlt::language {

QString reasonOf(const Error &error)
{
    if (error.text.isEmpty())
        return readerText(error.detail);
    return error.key.isEmpty()
               ? error.text
               : dico_label(error.key.toUtf8().constData(), error.text.toUtf8().constData());
}

QString detailOf(const Error &error)
{
    return error.text.isEmpty() ? QString() : readerText(error.detail);
}

QString explained(const Error &error)
{
    const QString detail = detailOf(error);
    return detail.isEmpty() ? reasonOf(error)
                            : reasonOf(error) + QStringLiteral(" (") + detail + QLatin1Char(')');
}

} // namespace vlt::language
