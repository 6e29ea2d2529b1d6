#pragma once

#include "contract/ChosenNumber.h"
#include "contract/SceneTexts.h"
#include "plugins/scene/mesh/Mesh.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vlt::scene {

/// A query "inline://parametric/query?key=value&key=value.inlinepylonurl" taken apart.
///
/// Nothing in it is escaped. The only value that may hold any text is the path "data_folder": it
/// reaches up to the next known key.
class ParametricQuery
{
public:
    /// Key and value.
    using Item = std::pair<std::string_view, std::string_view>;

    /// @param keys  the known keys
    /// @throws BadQuery  another form, an unknown key
    ParametricQuery(std::string_view url, std::initializer_list<std::string_view> keys);

    /// The value of an item that is there exactly once.
    /// @throws BadQuery  missing or doubled
    std::string_view single(std::string_view key) const;

    /// All values of an item that may be repeated, in their order.
    std::vector<std::string_view> all(std::string_view key) const;

    /// All items, for queries in which their order matters.
    const std::vector<Item> &items() const { return m_items; }

    /// Refuses what need not be there but is there twice. @throws BadQuery  doubled
    void atMostOnce(std::string_view key) const;

private:
    std::string m_text;
    std::vector<Item> m_items;
};

/// A value as messages show it: short, without control characters.
std::string shown(std::string_view value);

/// Whether a query asks for an object: "object=link" stands in it. All else is for its reader to
/// judge.
bool asksFor(std::string_view url, std::string_view object);

/// Numbers and other words that stand in one value, with blanks between them.
class Words
{
public:
    /// @param item  how messages name the value: "transmitter 3"
    Words(std::string item, std::string_view value);

    /// @throws BadQuery  unless there are so many words
    void expect(std::size_t count, std::string_view meaning) const;

    /// The next word as a number.
    ///
    /// @param name  the quantity, for messages
    /// @throws BadQuery  no finite decimal number, or one outside the range
    double number(contract::SceneTextId name, const contract::Range &range);

    /// The next word as a whole number. @throws BadQuery  as number() does
    int wholeNumber(contract::SceneTextId name, const contract::Range &range);

    /// The next word as a colour. @throws BadQuery  unless it is rrggbbaa
    Color color();

    /// How many words there are.
    std::size_t count() const { return m_words.size(); }

    /// The next word as it is; empty behind the last one.
    std::string_view word();

    /// The word that comes next, which stays there.
    std::string_view next() const;

    /// Refuses a word that has no meaning there. @throws BadQuery  always
    [[noreturn]] void refuseUnknown(contract::SceneTextId name, std::string_view word) const;

private:
    std::string m_item;
    std::vector<std::string_view> m_words;
    std::size_t m_next = 0;
};

} // namespace vlt::scene
