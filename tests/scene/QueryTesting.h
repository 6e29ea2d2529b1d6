#pragma once

#include "plugins/scene/parametric/BadQuery.h"

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
    QTest::addColumn<QByteArray>("what");
    QTest::addColumn<QByteArray>("with");
    QTest::addColumn<QByteArray>("reported");
    for (const auto &[what, with, reported] : rows)
        QTest::newRow(reported) << QByteArray(what) << QByteArray(with) << QByteArray(reported);
}

/// Applies the current row to the good query and checks the error.
///
/// @param parse  throws BadQuery
template<typename Parse>
void compareRefusal(const std::string &query, Parse parse)
{
    QFETCH(QByteArray, what);
    QFETCH(QByteArray, with);
    QFETCH(QByteArray, reported);

    std::string text;
    try {
        parse(replaced(query, what.toStdString(), with.toStdString()));
    } catch (const vlt::scene::BadQuery &fault) {
        text = fault.what();
    }

    QVERIFY2(text.find(reported.toStdString()) != std::string::npos, text.c_str());
}

} // namespace querytest
