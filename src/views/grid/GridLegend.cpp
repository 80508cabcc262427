#include "views/grid/GridLegend.h"

#include "platform/Twips.h"
#include "views/grid/GridCell.h"
#include "views/grid/GridGeometry.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace
{
constexpr int FrameWidth = 45; // around a cell, in twips

class CellSample : public QWidget
{
public:
    CellSample(const GridCell &cell, QWidget *parent) : QWidget(parent), m_cell(cell)
    {
        setFixedSize(Twips::toPixels(2 * FrameWidth + GridGeometry::CellWidth),
                     Twips::toPixels(2 * FrameWidth + GridGeometry::CellHeight));
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        CellPainter(painter, font()).paint(m_cell, {FrameWidth, FrameWidth});
    }

private:
    const GridCell m_cell;
};
} // namespace

GridLegend::GridLegend(QWidget *parent) : QWidget(parent)
{
    auto *entries = new QGridLayout(this);
    entries->setSpacing(4);
    entries->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const GridCell &cell, const QString &words) {
        const int row = entries->rowCount();
        entries->addWidget(new CellSample(cell, this), row, 0);
        entries->addWidget(new QLabel(words, this), row, 1);
    };
    for (quint8 status = 0; status < ParagraphStatusCount; ++status) {
        const bool current = status == Current;
        add({0, current ? quint8{Empty} : status, false, current}, statusName(status));
    }
    add({0, Empty, true, false}, fixedName());
}
