#pragma once

#include <array>
#include <cstddef>

// One value for each paragraph number 0..Count - 1, all T() in a new array. Numbers are int, as
// everywhere else; at() throws std::out_of_range for any other.
template <typename T, int Count> class ParagraphArray
{
public:
    T &at(int n) { return m_values.at(static_cast<std::size_t>(n)); }
    const T &at(int n) const { return m_values.at(static_cast<std::size_t>(n)); }
    static constexpr int count() { return Count; }
    void fill(const T &value) { m_values.fill(value); }

    auto begin() { return m_values.begin(); }
    auto end() { return m_values.end(); }
    auto begin() const { return m_values.begin(); }
    auto end() const { return m_values.end(); }

    bool operator==(const ParagraphArray &) const = default;

private:
    std::array<T, static_cast<std::size_t>(Count)> m_values{};
};
