#include "views/graph/GraphLegend.h"

#include "views/ParagraphStatuses.h"
#include "views/graph/GraphCard.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/GraphPainter.h"

#include <QPainter>
#include <algorithm>
#include <functional>

namespace
{
constexpr double SignWidth = 34.0; // pixels
constexpr int Gap = 8;

using Sign = std::function<void(QPainter &, const QRectF &, const GraphLook &)>;

void paintBox(QPainter &painter, const QRectF &box, const QColor &fill, const QColor &line)
{
    painter.setPen(line);
    painter.setBrush(fill);
    painter.drawRoundedRect(box, 3, 3);
}

Sign statusSign(quint8 status)
{
    return [status](QPainter &painter, const QRectF &room, const GraphLook &look) {
        QRectF box(0, 0, 16, 14);
        box.moveCenter(room.center());
        paintBox(painter, box, statusColour(status), look.ink);
        painter.setPen(Qt::black);
        painter.setFont(graphFont(10));
        if (status != Current) // whose letter is that of its own status
            painter.drawText(box, Qt::AlignCenter, statusLetter(status));
    };
}

void paintFixedSign(QPainter &painter, const QRectF &room, const GraphLook &look)
{
    QRectF box(0, 0, 26, 14);
    box.moveCenter(room.center());
    paintBox(painter, box, look.card, look.edge);
    painter.fillRect(QRectF(box.left() + 3, box.bottom() - 4, box.width() - 6, 2.5), look.ink);
}

Sign kindSign(GraphNode::Kind kind)
{
    return [kind](QPainter &painter, const QRectF &room, const GraphLook &look) {
        paintKindMark(painter, kind, room.center(), 10, look);
    };
}

QLineF middleLine(const QRectF &room)
{
    const double y = room.center().y();
    return {room.left() + 3, y, room.right() - 3, y};
}

void paintOutSign(QPainter &painter, const QRectF &room, const GraphLook &look)
{
    painter.setPen(QPen(look.strongOut, 2.2));
    painter.drawLine(middleLine(room));
}

void paintInSign(QPainter &painter, const QRectF &room, const GraphLook &look)
{
    painter.setPen(QPen(look.strongIn, 2.2, Qt::DashLine, Qt::FlatCap));
    painter.drawLine(middleLine(room));
}
} // namespace

struct GraphLegend::Entry {
    QString text;
    Sign sign;
};

GraphLegend::GraphLegend(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QList<GraphLegend::Entry> GraphLegend::entries()
{
    QList<Entry> entries;
    for (const quint8 status : {Empty, Written, DeadEnd, Reserved, Orphan, Current})
        entries.append({statusName(status), statusSign(status)});
    entries.append({fixedName(), paintFixedSign});
    using Kind = GraphNode::Kind;
    for (const Kind kind : {Kind::Shown, Kind::Stopped, Kind::Cut}) {
        QString name = kindName(kind);
        name[0] = name.at(0).toUpper();
        entries.append({name, kindSign(kind)});
    }
    entries.append({tr("Où mène le désigné"), paintOutSign});
    entries.append({tr("Ce qui y mène"), paintInSign});
    return entries;
}

int GraphLegend::rowHeight() const
{
    return std::max(18, fontMetrics().height() + 2);
}

QSize GraphLegend::sizeHint() const
{
    const QList<Entry> all = entries();
    int widest = 0;
    for (const Entry &entry : all)
        widest = std::max(widest, fontMetrics().horizontalAdvance(entry.text));
    return {static_cast<int>(SignWidth) + Gap + widest, static_cast<int>(all.size()) * rowHeight()};
}

void GraphLegend::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const GraphLook look = GraphLook::of(palette());
    QRectF room(0, 0, SignWidth, rowHeight());
    for (const Entry &entry : entries()) {
        painter.save();
        entry.sign(painter, room, look);
        painter.restore();
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(room.right() + Gap, room.top(), width(), room.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, entry.text);
        room.translate(0, room.height());
    }
}
