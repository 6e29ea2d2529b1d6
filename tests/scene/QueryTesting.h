#pragma once

#include "plugins/scene/parametric/BadQuery.h"
#include "support/Cases.h"

#include <QtTest>

#include <array>
#include <initializer_list>
#include <string>

/// Helpers for the tests of queries.
namespace querytest {

inline std::string replaced(std::string text, const std::string &what, const std::string &with)
{
    const std::size_t at = text.find(what);
    return at == std::string::npos ? text : text.replace(at, what.size(), with);
}

/// Adds rows: a part of a good query, its replacement, a part of the error's text.
inline void addRefusals(std::initializer_list<std::array<const char *, 3>> rows)
{
    const Cases<QByteArray, QByteArray> row({"what", "with"});
    for (const auto &[what, with, reported] : rows)
        row(reported, what, with);
}

/// Applies the current row to the good query and checks the error.
///
/// @param parse  throws BadQuery
template<typename Parse>
void compareRefusal(const std::string &query, Parse parse)
{
    QFETCH(QByteArray, what);
    QFETCH(QByteArray, with);
    const std::string reported = QTest::currentDataTag();

    std::string text;
    try {
        parse(replaced(query, what.toStdString(), with.toStdString()));
    } catch (const vlt::scene::BadQuery &fault) {
        text = fault.what();
    }

    QVERIFY2(text.find(reported) != std::string::npos, text.c_str());
}

} // namespace querytest
