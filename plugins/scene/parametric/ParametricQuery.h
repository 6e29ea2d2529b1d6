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

/// The parts of a query "inline://parametric/query?key=value&key=value.inlinepylonurl".
///
/// Nothing in it is escaped. Only the value of "data_folder", a path, may be any text: it reaches
/// up to the next known key.
class ParametricQuery
{
public:
    /// Key and value.
    using Item = std::pair<std::string_view, std::string_view>;

    /// @param keys  the known keys
    /// @throws BadQuery  the text has another form or an unknown key
    ParametricQuery(std::string_view url, std::initializer_list<std::string_view> keys);

    /// The value of an item that has to occur exactly once.
    /// @throws BadQuery  it is missing or occurs twice
    std::string_view single(std::string_view key) const;

    /// All values of an item that may be repeated, in their order.
    std::vector<std::string_view> all(std::string_view key) const;

    /// All items, for queries in which their order is relevant.
    const std::vector<Item> &items() const { return m_items; }

    /// Checks that an optional item does not occur twice. @throws BadQuery  it does
    void atMostOnce(std::string_view key) const;

private:
    std::string m_text;
    std::vector<Item> m_items;
};

/// A value for use in messages: cut short, without control characters.
std::string shown(std::string_view value);

/// Whether a query is for a kind of object, that is, contains "object=link" or the like. Nothing
/// else is checked.
bool asksFor(std::string_view url, std::string_view object);

/// Checks the kind of object of a query. @throws BadQuery  it is another one
void expectObject(const ParametricQuery &query, std::string_view object);

/// Name of a repeated item in messages: "transmitter 3".
std::string numbered(std::string_view key, std::size_t number);

/// The numbers and other words of one value, which are separated by blanks.
class Words
{
public:
    /// @param item  name of the value in messages: "transmitter 3"
    Words(std::string item, std::string_view value);

    /// @throws BadQuery  the number of words is not `count`
    void expect(std::size_t count, std::string_view meaning) const;

    /// The next word as a number.
    ///
    /// @param name  the quantity, for messages
    /// @throws BadQuery  it is not a finite decimal number, or outside the range
    double number(contract::SceneTextId name, const contract::Range &range);

    /// The next word as an integer. @throws BadQuery  as number()
    int wholeNumber(contract::SceneTextId name, const contract::Range &range);

    /// The next word as a colour. @throws BadQuery  it is not of the form rrggbbaa
    Color color();

    /// Number of all words.
    std::size_t count() const { return m_words.size(); }

    /// The next word unchanged; empty after the last one.
    std::string_view word();

    /// The word that word() would return, without moving to the one after it.
    std::string_view next() const;

    /// Reports an unknown word. @throws BadQuery  always
    [[noreturn]] void refuseUnknown(contract::SceneTextId name, std::string_view word) const;

private:
    std::string m_item;
    std::vector<std::string_view> m_words;
    std::size_t m_next = 0;
};

} // namespace vlt::scene
