#include "plugins/scene/parametric/ParametricQuery.h"

#include "contract/ParametricKeys.h"
#include "contract/QueryOptions.h"
#include "plugins/scene/parametric/BadQuery.h"

#include <osgDB/FileNameUtils>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <sstream>

namespace vlt::scene {

namespace {

constexpr std::string_view Start = contract::parametric::Start;
constexpr std::string_view PathKey = contract::query::DataFolder;
constexpr std::size_t MaxQuoteCharacters = 60;

std::string decimal(double number)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << number;
    return text.str();
}

std::string_view withoutExtension(std::string_view text)
{
    const std::size_t dot = text.rfind('.');
    return dot != std::string_view::npos &&
                   osgDB::equalCaseInsensitive(std::string(text.substr(dot + 1)),
                                               contract::parametric::Extension)
               ? text.substr(0, dot)
               : text;
}

} // namespace

ParametricQuery::ParametricQuery(std::string_view url, std::initializer_list<std::string_view> keys)
    : m_text(url)
{
    std::string_view rest = withoutExtension(m_text);
    if (!rest.starts_with(Start))
        throw BadQuery("MESS_QUERY_OTHER_FORM", {shown(url)});
    rest.remove_prefix(Start.size());
    while (!rest.empty()) {
        const std::string_view item = rest.substr(0, rest.find('&'));
        rest.remove_prefix(std::min(item.size() + 1, rest.size()));
        const std::size_t equals = item.find('=');
        const std::string_view key = item.substr(0, equals);
        const bool known = equals != std::string_view::npos &&
                           std::find(keys.begin(), keys.end(), key) != keys.end();
        if (known)
            m_items.emplace_back(key, item.substr(equals + 1));
        else if (!m_items.empty() && m_items.back().first == PathKey) {
            const char *begin = m_items.back().second.data();
            const auto length = static_cast<std::size_t>(item.data() + item.size() - begin);
            m_items.back().second = std::string_view(begin, length);
        } else
            throw BadQuery("MESS_QUERY_UNKNOWN_ITEM", {shown(item)});
    }
}

std::string_view ParametricQuery::single(std::string_view key) const
{
    const std::vector<std::string_view> values = all(key);
    if (values.empty())
        throw BadQuery("MESS_QUERY_NO_ITEM", {key});
    if (values.size() > 1)
        throw BadQuery("MESS_QUERY_TWO_ITEMS", {key, shown(values[0]), shown(values[1])});
    return values.front();
}

std::vector<std::string_view> ParametricQuery::all(std::string_view key) const
{
    std::vector<std::string_view> values;
    for (const auto &[name, value] : m_items) {
        if (name == key)
            values.push_back(value);
    }
    return values;
}

void ParametricQuery::atMostOnce(std::string_view key) const
{
    if (all(key).size() > 1)
        single(key);
}

std::string shown(std::string_view value)
{
    std::string text(value.substr(0, MaxQuoteCharacters));
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 127; }, '?');
    return text + (value.size() > MaxQuoteCharacters ? "..." : "");
}

bool asksFor(std::string_view url, std::string_view object)
{
    std::string_view rest = withoutExtension(url);
    rest.remove_prefix(std::min(Start.size(), rest.size()));
    const std::string wanted =
        contract::parametric::Object + std::string("=") + std::string(object);
    while (!rest.empty()) {
        const std::string_view item = rest.substr(0, rest.find('&'));
        if (item == wanted)
            return true;
        rest.remove_prefix(std::min(item.size() + 1, rest.size()));
    }
    return false;
}

void expectObject(const ParametricQuery &query, std::string_view object)
{
    constexpr const char *Key = contract::parametric::Object;
    const std::string_view given = query.single(Key);
    if (given != object)
        Words(Key, given).refuseUnknown("MESS_QUANTITY_KIND", given);
}

std::string numbered(std::string_view key, std::size_t number)
{
    return std::string(key) + ' ' + std::to_string(number);
}

Words::Words(std::string item, std::string_view value) : m_item(std::move(item))
{
    while (!value.empty()) {
        const std::size_t begin = value.find_first_not_of(' ');
        if (begin == std::string_view::npos)
            break;
        value.remove_prefix(begin);
        m_words.push_back(value.substr(0, value.find(' ')));
        value.remove_prefix(m_words.back().size());
    }
}

void Words::expect(std::size_t count, std::string_view meaning) const
{
    if (m_words.size() == count)
        return;
    std::string text;
    for (const std::string_view &word : m_words)
        text += (text.empty() ? "" : " ") + std::string(word);
    throw BadQuery("MESS_QUERY_OTHER_WORDS", {m_item, shown(text), meaning});
}

double Words::number(contract::SceneTextId name, const contract::Range &range)
{
    const std::string_view text = word();
    std::string_view digits = text;
    if (digits.starts_with('+') && !digits.starts_with("+-"))
        digits.remove_prefix(1);
    double value = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (fault == std::errc::invalid_argument || end != digits.data() + digits.size() ||
        (fault == std::errc() && !std::isfinite(value)))
        throw BadQuery("MESS_QUERY_NO_NUMBER", {m_item, contract::formatted(name), shown(text)});
    if (fault != std::errc() || !range.contains(value))
        throw BadQuery("MESS_QUERY_OUT_OF_RANGE", {m_item, contract::formatted(name), shown(text),
                                                   decimal(range.minimum), decimal(range.maximum)});
    return value;
}

int Words::wholeNumber(contract::SceneTextId name, const contract::Range &range)
{
    const std::string_view text = next();
    const double value = number(name, range);
    if (value != std::floor(value))
        throw BadQuery("MESS_QUERY_NOT_WHOLE", {m_item, contract::formatted(name), shown(text)});
    return static_cast<int>(value);
}

Color Words::color()
{
    const std::string_view text = word();
    Color color;
    bool good = text.size() == 8;
    for (unsigned i = 0; good && i < 4; ++i) {
        const char *begin = text.data() + std::size_t{2} * i;
        const auto [end, fault] = std::from_chars(begin, begin + 2, color[i], 16);
        good = fault == std::errc() && end == begin + 2;
    }
    if (!good)
        throw BadQuery("MESS_QUERY_NO_COLOR", {m_item, shown(text)});
    return color;
}

std::string_view Words::word()
{
    return m_next < m_words.size() ? m_words[m_next++] : std::string_view();
}

std::string_view Words::next() const
{
    return m_next < m_words.size() ? m_words[m_next] : std::string_view();
}

void Words::refuseUnknown(contract::SceneTextId name, std::string_view word) const
{
    throw BadQuery("MESS_QUERY_UNKNOWN_WORD", {m_item, contract::formatted(name), shown(word)});
}

} // namespace vlt::scene
