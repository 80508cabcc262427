#pragma once

#include <QTest>
#include <array>
#include <tuple>

// The table of a test whose columns have the types Values: each row begins with its name.
template <typename... Values>
void addTable(const std::array<const char *, sizeof...(Values)> &columns,
              std::initializer_list<std::tuple<const char *, Values...>> rows)
{
    auto name = columns.begin();
    (QTest::addColumn<Values>(*name++), ...);
    const auto add = [](const char *tag, const Values &...values) {
        (QTest::newRow(tag) << ... << values);
    };
    for (const auto &row : rows)
        std::apply(add, row);
}
