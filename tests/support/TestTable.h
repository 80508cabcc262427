#pragma once

#include <QTest>
#include <array>
#include <tuple>
#include <vector>

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

// The same within one function, for a loop over the rows and their names. Tells in which row a
// test failed; the rows behind it are not tried then.
template <typename... Values> class Table
{
public:
    using Row = std::tuple<const char *, Values...>;

    Table(std::initializer_list<Row> rows) : m_rows(rows) {}
    ~Table()
    {
        if (m_row != nullptr && QTest::currentTestFailed())
            qWarning("in the row \"%s\"", std::get<0>(*m_row));
    }
    Q_DISABLE_COPY_MOVE(Table)

    struct Place {
        const Row &operator*() const { return *(table.m_row = row); }
        void operator++() { ++row; }
        bool operator!=(const Place &other) const { return row != other.row; }

        const Table &table;
        const Row *row;
    };
    Place begin() const { return {*this, m_rows.data()}; }
    Place end() const { return {*this, m_rows.data() + m_rows.size()}; }

private:
    const std::vector<Row> m_rows;
    mutable const Row *m_row = nullptr;
};
