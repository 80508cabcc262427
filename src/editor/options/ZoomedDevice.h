#pragma once

#include <QPaintDevice>

class QWidget;

// A screen as the layout of a text sees it, with more or fewer dots to the inch than the widget has
// that shows the text: so points, tab stops and indents become larger or smaller on the screen
// while the text keeps its sizes.
class ZoomedDevice : public QPaintDevice
{
public:
    explicit ZoomedDevice(const QWidget &widget) : m_widget(widget) {}

    void setPercent(int percent) { m_percent = percent; }
    int percent() const { return m_percent; }

    QPaintEngine *paintEngine() const override { return nullptr; } // it is only measured

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    const QWidget &m_widget;
    int m_percent = 100;
};
