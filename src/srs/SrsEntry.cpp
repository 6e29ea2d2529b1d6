#include "srs/SrsEntry.h"

namespace vlt::srs {

QString displayText(const SrsEntry &entry)
{
    if (entry.code.isEmpty() && (entry.alias.isEmpty() || entry.name.isEmpty()))
        return {};

    QString text = entry.name.isEmpty() ? entry.alias : entry.name;
    if (!entry.code.isEmpty()) {
        if (!text.isEmpty())
            text += QStringLiteral(" , ");
        text += entry.code;
    }
    return text;
}

QString rowText(const SrsEntry &entry)
{
    return entry.isUserDefined ? entry.alias : displayText(entry);
}

} // namespace vlt::srs
