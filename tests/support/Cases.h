#pragma once

#include <QString>
#include <QTest>

#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

/// A text in a row of a table; literals are UTF-8.
struct CaseText
{
    CaseText() = default;
    CaseText(const char *utf8) : text(QString::fromUtf8(utf8)) {}
    CaseText(QString value) : text(std::move(value)) {}
    operator QString() const { return text; }

    QString text;
};

/// Type in which a row states a value of a column.
template<typename T>
using CaseValue = std::conditional_t<std::is_same_v<T, QString>, CaseText, T>;

/// Adds rows of which the first values are `Given`; those `Left` may be left out.
template<typename Given, typename... Left>
class CaseRows;

template<typename... Given>
class CaseRows<std::tuple<Given...>>
{
public:
    void operator()(const char *name, const CaseValue<Given> &...values) const
    {
        (QTest::newRow(name) << ... << static_cast<const Given &>(values));
    }
};

template<typename... Given, typename Next, typename... Left>
class CaseRows<std::tuple<Given...>, Next, Left...>
    : public CaseRows<std::tuple<Given..., Next>, Left...>
{
public:
    using CaseRows<std::tuple<Given..., Next>, Left...>::operator();

    void operator()(const char *name, const CaseValue<Given> &...values) const
    {
        (*this)(name, values..., CaseValue<Next>());
    }
};

/// The table of a test: makes the columns, then adds one row per call. Values that a row leaves out
/// at its end are empty, zero or false.
///
///     const Cases<QString, int> row({"text", "length"});
///     row("one letter", "a", 1);
///     row("no text");
template<typename First, typename... Others>
class Cases : public CaseRows<std::tuple<First>, Others...>
{
public:
    explicit Cases(const std::array<const char *, 1 + sizeof...(Others)> &columns)
    {
        const char *const *name = columns.data();
        QTest::addColumn<First>(*name);
        (QTest::addColumn<Others>(*++name), ...);
    }
};
