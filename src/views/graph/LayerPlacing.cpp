#include "views/graph/LayerPlacing.h"

#include "store/references/ReferenceWeb.h"
#include "views/graph/GraphDrawing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{
constexpr double RowPitch = GraphSize::NodeHeight + 12.0;
constexpr double ColumnPitch = GraphSize::NodeWidth + 14.0;
constexpr double LayerPitch = GraphSize::NodeWidth + 76.0; // room for the curves

qsizetype columnsFor(const QList<int> &layer, int rows)
{
    return std::max<qsizetype>(1, (layer.size() + rows - 1) / rows);
}

double widthFor(const Layers &layers, int rows)
{
    double width = 0.0;
    for (const QList<int> &layer : layers)
        width += static_cast<double>(columnsFor(layer, rows) - 1) * ColumnPitch + LayerPitch;
    return width - LayerPitch;
}

int largestLayer(const Layers &layers)
{
    qsizetype most = 1;
    for (const QList<int> &layer : layers)
        most = std::max(most, layer.size());
    return static_cast<int>(most);
}

// The heights nearest to the wished ones, in the sum of the squares, that are a row apart at least
// and stay within half the height of 0. Neighbours that want to stand too close are pooled.
std::vector<double> apart(const std::vector<double> &wishes, double height)
{
    struct Pool {
        double sum;
        double count;
        double mean() const { return sum / count; }
    };
    std::vector<Pool> pools;
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        pools.push_back({wishes[i] - static_cast<double>(i) * RowPitch, 1.0});
        while (pools.size() > 1 && pools[pools.size() - 2].mean() > pools.back().mean()) {
            const Pool last = pools.back();
            pools.pop_back();
            pools.back().sum += last.sum;
            pools.back().count += last.count;
        }
    }
    const double taken = static_cast<double>(wishes.size() - 1) * RowPitch;
    const double lowest = -height / 2.0;
    const double highest = std::max(lowest, height / 2.0 - taken);
    std::vector<double> heights;
    for (const Pool &pool : pools) {
        for (int i = 0; i < static_cast<int>(pool.count); ++i)
            heights.push_back(std::clamp(pool.mean(), lowest, highest) +
                              static_cast<double>(heights.size()) * RowPitch);
    }
    return heights;
}

// Lays the rows of one layer after the other by those that are placed already.
class Rows
{
public:
    Rows(const Layers &layers, const ReferenceWeb &web, double height,
         ParagraphArray<QPointF, 2001> &centres)
        : m_layers(layers), m_web(web), m_height(height), m_centres(centres)
    {
        m_layer.fill(-1);
        for (int i = 0; i < layers.size(); ++i) {
            for (const int n : layers.at(i))
                m_layer.at(n) = i;
        }
    }

    void place(int layer, int beside, qsizetype columns)
    {
        const QList<int> &paragraphs = m_layers.at(layer);
        std::vector<double> wishes;
        for (qsizetype first = 0; first < paragraphs.size(); first += columns)
            wishes.push_back(wish(paragraphs.mid(first, columns), beside));
        const std::vector<double> heights = apart(wishes, m_height);
        for (qsizetype i = 0; i < paragraphs.size(); ++i)
            m_centres.at(paragraphs.at(i)).setY(heights.at(static_cast<std::size_t>(i / columns)));
    }

private:
    double wish(const QList<int> &row, int beside) const
    {
        double sum = 0.0;
        int count = 0;
        for (const int n : row) {
            for (const QList<int> *side : {&m_web.outgoing.at(n), &m_web.incoming.at(n)}) {
                for (const int other : *side) {
                    if (m_layer.at(other) == beside) {
                        sum += m_centres.at(other).y();
                        ++count;
                    }
                }
            }
        }
        return count > 0 ? sum / count : m_centres.at(row.first()).y();
    }

    const Layers &m_layers;
    const ReferenceWeb &m_web;
    double m_height;
    ParagraphArray<QPointF, 2001> &m_centres;
    ParagraphArray<int, 2001> m_layer;
};
} // namespace

LayerPlacing::LayerPlacing(const Layers &layers, int rows) : m_layers(layers), m_rows(rows) {}

int LayerPlacing::rowsFor(const Layers &layers, double ratio)
{
    int best = 1;
    double least = std::numeric_limits<double>::max();
    for (int rows = 1; rows <= largestLayer(layers); ++rows) {
        const double shape = (widthFor(layers, rows) + ColumnPitch) / (rows * RowPitch);
        const double distance = std::abs(std::log(shape / ratio));
        if (distance < least) {
            least = distance;
            best = rows;
        }
    }
    return best;
}

int LayerPlacing::rowsWithin(const Layers &layers, double width)
{
    const int most = largestLayer(layers);
    int rows = 1;
    while (rows < most && widthFor(layers, rows) > width)
        ++rows;
    return rows;
}

qsizetype LayerPlacing::columns(int layer) const
{
    return columnsFor(m_layers.at(layer), m_rows);
}

QSizeF LayerPlacing::size() const
{
    const int rows = std::min(m_rows, largestLayer(m_layers));
    return {widthFor(m_layers, m_rows), (rows - 1) * RowPitch};
}

double LayerPlacing::middle(int layer) const
{
    const Layers before = m_layers.first(layer + 1);
    return widthFor(before, m_rows) - static_cast<double>(columns(layer) - 1) * ColumnPitch / 2.0;
}

ParagraphArray<QPointF, 2001> LayerPlacing::centres(const ReferenceWeb &web) const
{
    ParagraphArray<QPointF, 2001> centres;
    double x = 0.0;
    for (int layer = 0; layer < m_layers.size(); ++layer) {
        const QList<int> &paragraphs = m_layers.at(layer);
        const qsizetype wide = columns(layer);
        const qsizetype rows = (paragraphs.size() + wide - 1) / wide;
        for (qsizetype i = 0; i < paragraphs.size(); ++i) {
            const qsizetype rowNumber = i / wide;
            const double row = static_cast<double>(rowNumber) - static_cast<double>(rows - 1) / 2.0;
            centres.at(paragraphs.at(i)) = {x + static_cast<double>(i % wide) * ColumnPitch,
                                            row * RowPitch};
        }
        x += static_cast<double>(wide - 1) * ColumnPitch + LayerPitch;
    }
    Rows rows(m_layers, web, size().height(), centres);
    const int count = static_cast<int>(m_layers.size());
    for (int pass = 0; pass < 3; ++pass) {
        for (int layer = 1; layer < count; ++layer)
            rows.place(layer, layer - 1, columns(layer));
        for (int layer = count - 2; layer >= 0 && pass < 2; --layer)
            rows.place(layer, layer + 1, columns(layer));
    }
    return centres;
}
