#pragma once

#include "views/graph/GraphDrawing.h"
#include "views/graph/GraphOverview.h"
#include "views/graph/GraphPainter.h"
#include "views/graph/GraphTiles.h"

#include <QTimer>
#include <QWidget>
#include <optional>

struct Variables;

// Shows a picture of references, strongly those of the node under the pointer or else of the one
// with the focus, and lets the author move about in it: by the wheel, by dragging, by the keyboard
// from node to node. It knows nothing of the adventure: it says what is wanted.
class GraphCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit GraphCanvas(QWidget *parent = nullptr);
    ~GraphCanvas() override;

    // Where the author is in a picture that takes the place of another.
    enum class Place {
        Kept, // what he looked at stays where it was, and all is seen if it was before
        Begin // all of it is seen, or the node of the focus where that would be too small
    };
    // focus is a number; with Place::Kept a focus that there is stays.
    void setDrawing(const GraphDrawing &drawing, Place place, int focus);
    const GraphDrawing &drawing() const { return m_drawing; }

    // The same picture, its nodes described anew.
    void redescribe(const Variables &variables);

    void zoomIn();
    void zoomOut();
    void fit();
    const GraphView &view() const { return m_view; }

    // The node of a number comes into sight and gets the focus. False: there is none.
    bool find(int number);

    QSize sizeHint() const override { return {640, 480}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

Q_SIGNALS:
    // All by the number of a paragraph.
    void previewWanted(int n);
    void wanted(int n); // in the editing box
    void startWanted(int n);
    void stopWanted(int n); // set where there is none, taken away where there is one
    void menuWanted(int n, const QPoint &place);
    void scaleChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Drag { None, Pressed, Moving, Overview };

    void showBegin();
    QPointF middle() const { return QRectF(rect()).center(); }
    void zoom(double factor);
    void repaintAll();
    void moved();
    void zoomAt(double factor, const QPointF &at);
    void moveToOverview(const QPointF &point);
    int pointedNode(const QPointF &point) const;
    void hover(const QPointF &point);
    void setFocusNode(int node);
    bool moveFocus(int key);
    bool zoomByKey(int key);
    bool useFocused(const QKeyEvent &event);
    void paintPicture(QPainter &painter);

    GraphDrawing m_drawing;
    std::optional<GraphPainter> m_painter; // of m_drawing, in the colours of the desktop
    GraphView m_view;
    GraphTiles m_tiles;
    GraphOverview m_overview;
    QTimer m_settling; // runs until the scale has come to rest
    int m_focus = -1;  // nodes; -1: none
    int m_hover = -1;
    bool m_fits = false; // what is seen is to be all of it, also after a change of size
    bool m_fresh = true; // nothing has been painted of this picture
    Drag m_drag = Drag::None;
    QPointF m_dragFrom;
};
