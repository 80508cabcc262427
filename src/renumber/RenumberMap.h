#pragma once

#include "store/HistoryStep.h"
#include "store/Variables.h"

#include <QtGlobal>
#include <array>

// The new number of each paragraph 0..2000. Whoever builds one makes a permutation: every number is
// the new number of exactly one. A new map leaves every paragraph where it is.
class RenumberMap
{
public:
    RenumberMap();
    explicit RenumberMap(const NumberMap &numbers) : m_numbers(numbers) {}

    int of(int n) const { return m_numbers.at(n); }
    void set(int n, int newNumber) { m_numbers.at(n) = static_cast<qint16>(newNumber); }
    void exchange(int a, int b);

    const NumberMap &numbers() const { return m_numbers; }

    bool moves(int n) const { return of(n) != n; }

private:
    NumberMap m_numbers;
};
