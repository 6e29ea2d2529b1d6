#include "language/ReaderText.h"

#include "contract/TextPatterns.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <string>
#include <vector>

namespace vlt::language {

namespace {

QString valueText(contract::ValueKind kind, const QString &value)
{
    switch (kind) {
    case contract::ValueKind::Count:
        return wholeNumber(value.toLongLong());
    case contract::ValueKind::Nested:
        return readerText(value);
    default:
        return value;
    }
}

QString translated(const contract::Recognised &found)
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < found.values.size(); ++i) {
        const std::string_view value = found.values[i];
        const QString text = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
        texts.push_back(valueText(found.text->kinds[i], text).toStdString());
    }
    const std::string pattern = dico_label(found.text->key, found.text->pattern).toStdString();
    const std::vector<std::string_view> values(texts.begin(), texts.end());
    return QString::fromStdString(contract::filled(pattern, values));
}

} // namespace

QString readerText(const QString &english)
{
    const std::string text = english.toStdString();
    if (const auto found = contract::recognised(text))
        return translated(*found);
    if (!text.starts_with('/'))
        return english;
    constexpr std::string_view Mark = ": ";
    for (std::size_t at = text.find(Mark); at != std::string::npos; at = text.find(Mark, at + 1)) {
        const std::size_t begin = at + Mark.size();
        if (const auto found = contract::recognised(std::string_view(text).substr(begin)))
            return QString::fromStdString(text.substr(0, begin)) + translated(*found);
    }
    return english;
}

} // namespace vlt::language
