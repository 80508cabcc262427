#include "views/graph/LayerOrder.h"
#include "store/references/ReferenceWeb.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace
{
// Places of paragraphs in their layers, and the links that lead from a layer to the one beside it.
class Places
{
public:
    Places(const Layers &layers, const ReferenceWeb &web) : m_web(web)
    {
        m_layer.fill(-1);
        for (int i = 0; i < layers.size(); ++i)
            note(layers.at(i), i);
    }

    void note(const QList<int> &paragraphs, int layer)
    {
        for (int place = 0; place < paragraphs.size(); ++place) {
            m_layer.at(paragraphs.at(place)) = layer;
            m_place.at(paragraphs.at(place)) = place;
        }
    }

    // The places of n's neighbours in that layer, whichever refers to the other, ascending.
    std::vector<int> neighbours(int n, int layer) const
    {
        std::vector<int> places;
        for (const QList<int> *side : {&m_web.outgoing.at(n), &m_web.incoming.at(n)}) {
            for (const int other : *side) {
                if (m_layer.at(other) == layer)
                    places.push_back(m_place.at(other));
            }
        }
        std::sort(places.begin(), places.end());
        return places;
    }

private:
    const ReferenceWeb &m_web;
    ParagraphArray<int, 2001> m_layer;
    ParagraphArray<int, 2001> m_place;
};

// One without neighbours keeps its place as far as the others allow.
void orderByMeans(QList<int> &layer, qsizetype besideSize, int beside, const Places &places)
{
    struct Wish {
        double mean;
        int n;
    };
    std::vector<Wish> wishes;
    wishes.reserve(static_cast<std::size_t>(layer.size()));
    for (int i = 0; i < layer.size(); ++i) {
        const std::vector<int> around = places.neighbours(layer.at(i), beside);
        const double own =
            (i + 0.5) * static_cast<double>(besideSize) / static_cast<double>(layer.size()) - 0.5;
        const double sum = std::accumulate(around.begin(), around.end(), 0.0);
        wishes.push_back(
            {around.empty() ? own : sum / static_cast<double>(around.size()), layer.at(i)});
    }
    std::stable_sort(wishes.begin(), wishes.end(),
                     [](const Wish &a, const Wish &b) { return a.mean < b.mean; });
    std::transform(wishes.begin(), wishes.end(), layer.begin(), [](const Wish &w) { return w.n; });
}

void sweep(Layers &layers, Places &places, bool forward)
{
    const int count = static_cast<int>(layers.size());
    for (int step = 1; step < count; ++step) {
        const int i = forward ? step : count - 1 - step;
        const int beside = forward ? i - 1 : i + 1;
        orderByMeans(layers[i], layers.at(beside).size(), beside, places);
        places.note(layers.at(i), i);
    }
}

// Counts inversions of the links' far ends, with a binary indexed tree: Barth, Juenger and Mutzel,
// "Simple and efficient bilayer cross counting", 2002.
qint64 crossingsBetween(const QList<int> &layer, qsizetype nextSize, int next, const Places &places)
{
    std::vector<int> tree(static_cast<std::size_t>(nextSize) + 1);
    qint64 crossings = 0;
    qint64 before = 0;
    for (const int n : layer) {
        std::vector<int> ends = places.neighbours(n, next);
        for (const int end : ends) {
            qint64 notBeyond = 0;
            for (int i = end + 1; i > 0; i -= i & -i)
                notBeyond += tree[static_cast<std::size_t>(i)];
            crossings += before - notBeyond;
        }
        for (const int end : ends) {
            for (int i = end + 1; i <= nextSize; i += i & -i)
                ++tree[static_cast<std::size_t>(i)];
        }
        before += static_cast<qint64>(ends.size());
    }
    return crossings;
}
// Crossings of the links of two paragraphs that stand in this order, with the places of what they
// are linked to.
qint64 crossingsOf(const std::vector<int> &first, const std::vector<int> &second)
{
    qint64 crossings = 0;
    auto before = second.begin();
    for (const int place : first) {
        while (before != second.end() && *before < place)
            ++before;
        crossings += before - second.begin();
    }
    return crossings;
}

// Whether fewer links cross with b before a, which is before b now.
bool betterExchanged(int a, int b, int layer, const Places &places)
{
    qint64 gain = 0;
    for (const int beside : {layer - 1, layer + 1}) {
        const std::vector<int> ofA = places.neighbours(a, beside);
        const std::vector<int> ofB = places.neighbours(b, beside);
        gain += crossingsOf(ofA, ofB) - crossingsOf(ofB, ofA);
    }
    return gain > 0;
}

// Exchanges paragraphs that stand side by side as long as that helps.
void exchangeNeighbours(Layers &layers, const ReferenceWeb &web)
{
    constexpr int Rounds = 10;
    Places places(layers, web);
    bool gained = true;
    for (int round = 0; round < Rounds && gained; ++round) {
        gained = false;
        for (int layer = 0; layer < layers.size(); ++layer) {
            QList<int> &paragraphs = layers[layer];
            for (qsizetype i = 0; i + 1 < paragraphs.size(); ++i) {
                if (!betterExchanged(paragraphs.at(i), paragraphs.at(i + 1), layer, places))
                    continue;
                paragraphs.swapItemsAt(i, i + 1);
                gained = true;
            }
            places.note(paragraphs, layer);
        }
    }
}
} // namespace

qint64 countCrossings(const Layers &layers, const ReferenceWeb &web)
{
    const Places places(layers, web);
    qint64 crossings = 0;
    for (int i = 0; i + 1 < layers.size(); ++i)
        crossings += crossingsBetween(layers.at(i), layers.at(i + 1).size(), i + 1, places);
    return crossings;
}

void reduceCrossings(Layers &layers, const ReferenceWeb &web)
{
    constexpr int Sweeps = 16;
    constexpr int Patience = 4; // sweeps without a gain
    Layers best = layers;
    qint64 fewest = countCrossings(layers, web);
    Places places(layers, web);
    int gainless = 0;
    for (int i = 0; i < Sweeps && gainless < Patience && fewest > 0; ++i) {
        sweep(layers, places, i % 2 == 0);
        const qint64 crossings = countCrossings(layers, web);
        gainless = crossings < fewest ? 0 : gainless + 1;
        if (crossings < fewest) {
            fewest = crossings;
            best = layers;
        }
    }
    exchangeNeighbours(best, web);
    layers = best;
}
