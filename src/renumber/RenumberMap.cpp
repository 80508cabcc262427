#include "renumber/RenumberMap.h"

#include <numeric>
#include <utility>

RenumberMap::RenumberMap()
{
    std::iota(m_numbers.begin(), m_numbers.end(), qint16{0});
}

void RenumberMap::exchange(int a, int b)
{
    std::swap(m_numbers.at(a), m_numbers.at(b));
}
