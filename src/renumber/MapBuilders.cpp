#include "renumber/MapBuilders.h"

namespace
{
bool isMarked(const Marks &marks, int n)
{
    return marks.at(n) == 1;
}

// Goes through the numbers that a block move concerns, in the direction of the move, and gives each
// the next place that is free. It begins with the block, whose first number is the one farthest
// from where it goes; the numbers in front of the block follow, and their places wrap round to
// those that the block has left.
class BlockWalk
{
public:
    // step: -1 towards the lower numbers, 1 towards the higher ones.
    BlockWalk(int blockStart, int blockEnd, int delta, int step)
        : m_step(step), m_blockStart(blockStart), m_behindBlock(blockEnd + step),
          m_end(blockEnd + step * delta), m_source(blockStart), m_place(blockStart + step * delta),
          m_next(isPast(m_place, blockEnd) ? m_place : m_behindBlock)
    {
    }

    RenumberMap walk(const Marks &unmixable)
    {
        RenumberMap map;
        do {
            while (!isPast(m_source, m_end) && isMarked(unmixable, m_source))
                advanceSource();
            if (isPast(m_source, m_end))
                break;
            // The source is free itself, so that this ends.
            while (isMarked(unmixable, m_place))
                advancePlace();
            map.set(m_source, m_place);
            advanceSource();
            advancePlace();
        } while (!isPast(m_source, m_end) && m_source != m_place);
        return map;
    }

private:
    bool isPast(int n, int limit) const { return (n - limit) * m_step > 0; }

    // Numbers between the block and the place where it goes stay as they are.
    void advanceSource()
    {
        m_source += m_step;
        if (m_source == m_behindBlock)
            m_source = m_next;
    }

    void advancePlace()
    {
        m_place += m_step;
        if (isPast(m_place, m_end))
            m_place = m_blockStart;
    }

    const int m_step;
    const int m_blockStart;
    const int m_behindBlock;
    const int m_end; // the last number concerned
    int m_source;
    int m_place;
    const int m_next; // the number to go on with after the block
};

// Gives the numbers of low..high that are neither fixed nor otherwise than wanted the places from
// place on, and returns the place behind.
int pack(RenumberMap &map, int low, int high, int place, const Marks &unmixable,
         const Marks &written, bool wanted)
{
    for (int n = low; n <= high; ++n) {
        if (isMarked(unmixable, n) || isMarked(written, n) != wanted)
            continue;
        while (isMarked(unmixable, place))
            ++place;
        map.set(n, place++);
    }
    return place;
}
} // namespace

RenumberMap SwapMap(int a, int b)
{
    RenumberMap map;
    map.exchange(a, b);
    return map;
}

// One exchange for each number, with any partner: not every order comes equally often, which is
// required, as is that a fixed partner is not drawn again.
RenumberMap MixMap(int low, int high, const Marks &unmixable, const std::function<double()> &random)
{
    RenumberMap map;
    for (int i = low + 1; i < high; ++i) {
        const int j = low + 1 + static_cast<int>(random() * (high - low - 1));
        if (!isMarked(unmixable, i) && !isMarked(unmixable, j))
            map.exchange(i, j);
    }
    return map;
}

RenumberMap BlockMoveMap(int low, int high, int delta, Towards towards, const Marks &unmixable)
{
    return towards == Towards::Lower ? BlockWalk(high, low, delta, -1).walk(unmixable)
                                     : BlockWalk(low, high, delta, 1).walk(unmixable);
}

std::optional<RenumberMap> PackHolesMap(int low, int high, const Marks &written,
                                        const Marks &unmixable)
{
    RenumberMap map;
    const int behind = pack(map, low, high, low, unmixable, written, true);
    if (behind == low || behind > high)
        return std::nullopt;
    pack(map, low, high, behind, unmixable, written, false);
    return map;
}
