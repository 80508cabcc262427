#include "views/graph/GraphCanvas.h"

#include "views/graph/GraphNodes.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace
{
constexpr double ZoomStep = 1.25;  // a key, or a notch of the wheel
constexpr double NotchAngle = 120; // in Qt's eighths of a degree
constexpr int Settled = 80;        // milliseconds after which the scale has come to rest
constexpr int TilesTime = 6;       // milliseconds for tiles in each frame
constexpr int FirstTilesTime = 250;
constexpr double LeastFitScale = 0.22; // the whole of a larger picture tells nothing at first
constexpr double BeginScale = 0.6;     // which begins like this
} // namespace

GraphCanvas::GraphCanvas(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_settling.setSingleShot(true);
    connect(&m_settling, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    repaintAll();
}

GraphCanvas::~GraphCanvas() = default;

void GraphCanvas::setDrawing(const GraphDrawing &drawing, Place place, int focus)
{
    const bool keeps = place == Place::Kept;
    const int anchor = m_focus >= 0 ? m_focus : nodeNearest(m_drawing, m_view.toPicture(middle()));
    const GraphNode before = anchor >= 0 ? m_drawing.nodes.at(anchor) : GraphNode();
    const QPointF at = m_view.toView(before.centre);
    m_drawing = drawing;
    m_hover = -1;
    const int same = keeps && anchor >= 0 ? nodeLike(m_drawing, before) : -1;
    m_focus = m_focus >= 0 && same >= 0 ? same : nodeOf(m_drawing, focus);
    repaintAll();
    if (same < 0 || m_fits)
        showBegin();
    else
        m_view.bring(m_drawing.nodes.at(same).centre, at);
    moved();
}

void GraphCanvas::redescribe(const Variables &variables)
{
    const QList<GraphNode> before = m_drawing.nodes;
    describeNodes(m_drawing, variables);
    if (m_drawing.nodes != before)
        repaintAll();
}

void GraphCanvas::showBegin()
{
    m_view.fit(m_drawing.bounds, size());
    m_fits = m_view.scale >= LeastFitScale || m_focus < 0;
    if (m_fits)
        return;
    m_view.scale = BeginScale;
    m_view.bring(m_drawing.nodes.at(m_focus).centre, middle());
    m_view.intoBounds(m_drawing.bounds, size());
}

// The painter refers to the drawing, and the tiles show what it painted.
void GraphCanvas::repaintAll()
{
    m_painter.emplace(m_drawing, GraphLook::of(palette()));
    m_tiles.clear();
    m_overview.clear();
    m_fresh = true;
    update();
}

void GraphCanvas::moved()
{
    m_view.keepOn(m_drawing.bounds, size());
    update();
    Q_EMIT scaleChanged();
}

void GraphCanvas::zoomAt(double factor, const QPointF &at)
{
    GraphView all;
    all.fit(m_drawing.bounds, size());
    // What is smaller than half the window tells nothing any more.
    const double least = std::min(1.0, all.scale / 2 / m_view.scale);
    m_fits = false;
    m_view.zoom(std::max(factor, least), at);
    m_settling.start(Settled);
    moved();
}

void GraphCanvas::zoom(double factor)
{
    zoomAt(factor, m_focus >= 0 ? m_view.toView(m_drawing.nodes.at(m_focus).centre) : middle());
}

void GraphCanvas::zoomIn()
{
    zoom(ZoomStep);
}

void GraphCanvas::zoomOut()
{
    zoom(1 / ZoomStep);
}

void GraphCanvas::fit()
{
    m_fits = true;
    m_view.fit(m_drawing.bounds, size());
    moved();
}

bool GraphCanvas::find(int number)
{
    const int node = nodeOf(m_drawing, number);
    if (node < 0)
        return false;
    if (m_view.scale < BeginScale) {
        m_fits = false;
        m_view.scale = BeginScale;
        m_view.bring(m_drawing.nodes.at(node).centre, middle());
    }
    setFocusNode(node);
    moved();
    return true;
}

void GraphCanvas::setFocusNode(int node)
{
    m_focus = node;
    const GraphView before = m_view;
    const QRectF room = roomOf(m_drawing.nodes.at(node));
    m_view.reveal(room, size());
    if (QRectF(m_overview.room(m_drawing, m_view, size())).intersects(m_view.toView(room)))
        m_view.bring(room.center(), middle());
    m_fits = m_fits && before == m_view;
    update();
}

void GraphCanvas::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_painter->look().page);
    if (!m_drawing.nodes.isEmpty())
        paintPicture(painter);
    painter.setPen(m_painter->look().edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void GraphCanvas::paintPicture(QPainter &painter)
{
    const bool zooming = m_settling.isActive();
    const auto missing = zooming ? GraphTiles::Missing::Leave : GraphTiles::Missing::Paint;
    const bool whole = m_tiles.paint(painter, *m_painter, {m_view, size(), devicePixelRatioF()},
                                     missing, m_fresh ? FirstTilesTime : TilesTime);
    m_fresh = false;
    if (!whole && !zooming)
        QTimer::singleShot(0, this, qOverload<>(&QWidget::update));
    painter.save();
    painter.setTransform(m_view.transform(), true);
    const int strong = m_hover >= 0 ? m_hover : m_focus;
    if (strong >= 0)
        m_painter->paintStrong(painter, strong);
    if (m_focus >= 0 && hasFocus())
        m_painter->paintFocus(painter, m_focus);
    painter.restore();
    m_overview.paint(painter, *m_painter, m_drawing, m_view, size());
}

void GraphCanvas::resizeEvent(QResizeEvent * /*event*/)
{
    if (m_fits)
        m_view.fit(m_drawing.bounds, size());
    moved();
}

void GraphCanvas::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        repaintAll();
    QWidget::changeEvent(event);
}

bool GraphCanvas::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int node = pointedNode(help->pos());
    if (node >= 0)
        QToolTip::showText(help->globalPos(), nodeTip(m_drawing.nodes.at(node)), this);
    else
        QToolTip::hideText();
    return true;
}

int GraphCanvas::pointedNode(const QPointF &point) const
{
    const bool overOverview = m_overview.room(m_drawing, m_view, size()).contains(point.toPoint());
    return overOverview ? -1 : nodeAt(m_drawing, m_view.toPicture(point));
}

void GraphCanvas::hover(const QPointF &point)
{
    const int node = pointedNode(point);
    if (node == m_hover)
        return;
    m_hover = node;
    setCursor(node >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void GraphCanvas::leaveEvent(QEvent *event)
{
    m_hover = -1;
    update();
    QWidget::leaveEvent(event);
}

void GraphCanvas::wheelEvent(QWheelEvent *event)
{
    const QPoint turned = event->angleDelta();
    const int angle = turned.y() != 0 ? turned.y() : turned.x(); // with Alt it is the other
    zoomAt(std::pow(ZoomStep, angle / NotchAngle), event->position());
    hover(event->position());
}

void GraphCanvas::mousePressEvent(QMouseEvent *event)
{
    const bool moves = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    if (!moves || m_drag != Drag::None)
        return;
    m_dragFrom = event->position();
    const QRect overview = m_overview.room(m_drawing, m_view, size());
    const bool inOverview = overview.contains(event->position().toPoint());
    m_drag = inOverview ? Drag::Overview : Drag::Pressed;
    if (inOverview)
        moveToOverview(event->position());
}

void GraphCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF point = event->position();
    if (m_drag == Drag::None) {
        hover(point);
    } else if (m_drag == Drag::Overview) {
        moveToOverview(point);
    } else if (m_drag == Drag::Moving ||
               (point - m_dragFrom).manhattanLength() >= QApplication::startDragDistance()) {
        m_drag = Drag::Moving;
        m_fits = false;
        setCursor(Qt::ClosedHandCursor);
        m_view.corner -= (point - m_dragFrom) / m_view.scale;
        m_dragFrom = point;
        moved();
    }
}

// The place of the overview may go while it is dragged about: then all is seen.
void GraphCanvas::moveToOverview(const QPointF &point)
{
    const QRect room = m_overview.room(m_drawing, m_view, size());
    if (room.isEmpty())
        return;
    m_fits = false;
    m_view.bring(GraphOverview::toPicture(point, room, m_drawing.bounds), middle());
    moved();
}

void GraphCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    setCursor(Qt::ArrowCursor);
    const int node = pointedNode(event->position());
    m_hover = -1;
    hover(event->position());
    if (drag != Drag::Pressed || event->button() != Qt::LeftButton || node < 0)
        return;
    m_focus = node; // nothing moves under the pointer: a second click may follow
    update();
    const int number = m_drawing.nodes.at(node).number;
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        Q_EMIT wanted(number);
    else
        Q_EMIT previewWanted(number);
}

void GraphCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int node = pointedNode(event->position());
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier && node >= 0)
        Q_EMIT startWanted(m_drawing.nodes.at(node).number);
}

void GraphCanvas::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int node = byKey ? m_focus : pointedNode(event->pos());
    if (node < 0)
        return;
    setFocusNode(node);
    const QPoint place = m_view.toView(roomOf(m_drawing.nodes.at(node)).bottomLeft()).toPoint();
    Q_EMIT menuWanted(m_drawing.nodes.at(node).number,
                      byKey ? mapToGlobal(place) : event->globalPos());
}

bool GraphCanvas::moveFocus(int key)
{
    GraphStep step = GraphStep::Before;
    if (key == Qt::Key_Left)
        step = GraphStep::Upstream;
    else if (key == Qt::Key_Right)
        step = GraphStep::Downstream;
    else if (key == Qt::Key_Up)
        step = GraphStep::Before;
    else if (key == Qt::Key_Down)
        step = GraphStep::After;
    else
        return false;
    if (m_focus >= 0)
        setFocusNode(neighbour(m_drawing, m_focus, step));
    else if (!m_drawing.nodes.isEmpty())
        setFocusNode(0);
    return true;
}

bool GraphCanvas::zoomByKey(int key)
{
    if (key == Qt::Key_Plus || key == Qt::Key_Equal)
        zoomIn();
    else if (key == Qt::Key_Minus)
        zoomOut();
    else if (key == Qt::Key_F || key == Qt::Key_0)
        fit();
    else
        return false;
    return true;
}

bool GraphCanvas::useFocused(const QKeyEvent &event)
{
    if (m_focus < 0)
        return false;
    const int number = m_drawing.nodes.at(m_focus).number;
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter && event.modifiers().testFlag(Qt::ShiftModifier))
        Q_EMIT wanted(number);
    else if (enter)
        Q_EMIT startWanted(number);
    else if (event.key() == Qt::Key_Space)
        Q_EMIT previewWanted(number);
    else if (event.key() == Qt::Key_A)
        Q_EMIT stopWanted(number);
    else
        return false;
    return true;
}

void GraphCanvas::keyPressEvent(QKeyEvent *event)
{
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool used =
        !command && (moveFocus(event->key()) || zoomByKey(event->key()) || useFocused(*event));
    if (!used)
        QWidget::keyPressEvent(event);
}
