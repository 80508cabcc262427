#include "views/graph/BookLayers.h"

#include "store/references/ReferenceWeb.h"

#include <algorithm>

namespace
{
class Layering
{
public:
    Layering(const ReferenceWeb &web, const QList<int> &paragraphs) : m_web(web)
    {
        for (const int n : paragraphs)
            m_waiting.at(n) = 1;
    }

    bool waits(int n) const { return m_waiting.at(n) == 1; }

    // All that can be reached from these, which are the first layer.
    Layers from(QList<int> layer)
    {
        Layers layers;
        for (const int n : layer)
            m_waiting.at(n) = 0;
        while (!layer.isEmpty()) {
            layers.append(layer);
            layer = next(layer);
        }
        return layers;
    }

private:
    QList<int> next(const QList<int> &layer)
    {
        QList<int> next;
        for (const int n : layer) {
            for (const int to : m_web.outgoing.at(n)) {
                if (waits(to)) {
                    m_waiting.at(to) = 0;
                    next.append(to);
                }
            }
        }
        return next;
    }

    const ReferenceWeb &m_web;
    ParagraphArray<quint8, 2001> m_waiting; // 1: to be put into a layer
};

void append(Layers &layers, const Layers &more)
{
    for (qsizetype i = 0; i < more.size(); ++i) {
        if (i < layers.size())
            layers[i] += more.at(i);
        else
            layers.append(more.at(i));
    }
}
} // namespace

BookLayers bookLayers(const ReferenceWeb &web, const QList<int> &paragraphs, int start)
{
    BookLayers layers;
    Layering layering(web, paragraphs);
    if (layering.waits(start))
        layers.reached = layering.from({start});
    const auto isBeginning = [&](int n) {
        const QList<int> &before = web.incoming.at(n);
        return layering.waits(n) && std::none_of(before.begin(), before.end(), [&](int from) {
                   return from != n && layering.waits(from);
               });
    };
    QList<int> beginnings;
    std::copy_if(paragraphs.begin(), paragraphs.end(), std::back_inserter(beginnings), isBeginning);
    layers.apart = layering.from(beginnings);
    // What is left goes round in circles, which begin at their lowest number.
    for (const int n : paragraphs) {
        if (layering.waits(n))
            append(layers.apart, layering.from({n}));
    }
    return layers;
}
