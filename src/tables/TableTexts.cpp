#include "tables/TableTexts.h"

#include "contract/TextPatterns.h"
#include "language/VltLanguageManager.h"

#include <array>

namespace vlt::tables {

namespace {

auto recognised(const QByteArray &english)
{
    return contract::recognised({english.constData(), static_cast<std::size_t>(english.size())});
}

} // namespace

bool isEmptyTable(const QString &reason)
{
    const QByteArray bytes = reason.toUtf8();
    const auto found = recognised(bytes);
    if (!found)
        return false;
    const QByteArray key = found->text->key;
    return key == "MESS_TAB_EMPTY_FILE" || key == "MESS_TAB_BLANK_FILE" ||
           key == "MESS_TAB_NO_VALUE" || key == "MESS_TAB_NO_ROW";
}

QString tableText(const QString &english)
{
    const QByteArray bytes = english.toUtf8();
    const auto found = recognised(bytes);
    if (!found)
        return english;
    QString pattern = dico_label(found->text->key, found->text->pattern);
    std::array<QString, 2> values;
    for (std::size_t i = 0; i < found->values.size() && i < values.size(); ++i)
        values[i] = QString::fromUtf8(found->values[i].data(),
                                      static_cast<qsizetype>(found->values[i].size()));
    // all at once: a value that itself holds "%2" stays as it is
    switch (found->values.size()) {
    case 0:
        return pattern;
    case 1:
        return pattern.arg(values[0]);
    default:
        return pattern.arg(values[0], values[1]);
    }
}

} // namespace vlt::tables
