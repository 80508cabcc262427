#include "views/graph/BookLayout.h"

#include "store/Variables.h"
#include "store/references/ReferenceWeb.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/LayerOrder.h"
#include "views/graph/LayerPlacing.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{
constexpr double WishedRatio = 1.8; // of width to height, as screens have it
constexpr double LabelHeight = 24.0;
constexpr double LabelWidth = 110.0;
constexpr double Gap = 12.0; // between a label and what it names

class BookPicture
{
public:
    explicit BookPicture(const ReferenceWeb &web) : m_web(web) { m_index.fill(-1); }

    // Gives how wide it is.
    double addReached(Layers layers)
    {
        reduceCrossings(layers, m_web);
        const LayerPlacing placing(layers, LayerPlacing::rowsFor(layers, WishedRatio));
        for (int layer = 0; layer < layers.size(); ++layer) {
            const QString name = layer == 0 ? QCoreApplication::translate("BookLayout", "Départ")
                                            : QString::number(layer);
            addLabel(name, placing.middle(layer) - LabelWidth / 2.0, LabelWidth);
        }
        addBlock(layers, placing, 0);
        return placing.size().width();
    }

    void addApart(Layers layers, const QString &heading, double width, int firstLayer)
    {
        reduceCrossings(layers, m_web);
        const double most = std::max(width, 20.0 * GraphSize::NodeWidth);
        const LayerPlacing placing(layers, LayerPlacing::rowsWithin(layers, most));
        m_top += 2.0 * LabelHeight;
        addLabel(heading, -GraphSize::NodeWidth / 2.0, 3.0 * LabelWidth);
        addBlock(layers, placing, firstLayer);
    }

    GraphDrawing finish()
    {
        for (int n = 0; n < m_index.count(); ++n) {
            for (const int to : m_web.outgoing.at(n)) {
                if (m_index.at(n) >= 0 && m_index.at(to) >= 0)
                    m_drawing.edges.append({m_index.at(n), m_index.at(to)});
            }
        }
        const double margin = GraphSize::Margin;
        m_drawing.bounds = m_taken.adjusted(-margin, -margin, margin, margin);
        return m_drawing;
    }

private:
    void addLabel(const QString &name, double left, double width)
    {
        const QRectF room(left, m_top, width, LabelHeight);
        m_drawing.labels.append({name, room});
        m_taken |= room;
    }

    // Below the label that was put there.
    void addBlock(const Layers &layers, const LayerPlacing &placing, int firstLayer)
    {
        const double height = placing.size().height();
        const QPointF middle(0.0, m_top + LabelHeight + Gap + GraphSize::NodeHeight / 2.0 +
                                      height / 2.0);
        const ParagraphArray<QPointF, 2001> centres = placing.centres(m_web);
        for (int layer = 0; layer < layers.size(); ++layer) {
            for (const int n : layers.at(layer))
                addNode(n, firstLayer + layer, middle + centres.at(n));
        }
        m_top = middle.y() + height / 2.0 + GraphSize::NodeHeight / 2.0;
    }

    void addNode(int n, int layer, QPointF centre)
    {
        GraphNode node;
        node.number = n;
        node.layer = layer;
        node.centre = centre;
        m_index.at(n) = static_cast<int>(m_drawing.nodes.size());
        m_drawing.nodes.append(node);
        m_taken |= roomOf(node);
    }

    const ReferenceWeb &m_web;
    GraphDrawing m_drawing;
    ParagraphArray<int, 2001> m_index; // of each paragraph's node
    QRectF m_taken;
    double m_top = 0.0; // where the next part begins
};
} // namespace

GraphDrawing layOutBook(const Variables &variables, const ReferenceWeb &web, int start)
{
    QList<int> paragraphs;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        if (variables.Written.at(n) == 1 || !web.incoming.at(n).isEmpty())
            paragraphs.append(n);
    }
    const BookLayers layers = bookLayers(web, paragraphs, start);
    BookPicture picture(web);
    double width = 0.0;
    if (!layers.reached.isEmpty())
        width = picture.addReached(layers.reached);
    if (!layers.apart.isEmpty()) {
        const QString heading =
            QCoreApplication::translate("BookLayout", "Hors d'atteinte depuis le %1").arg(start);
        picture.addApart(layers.apart, heading, width, static_cast<int>(layers.reached.size()));
    }
    return picture.finish();
}
