#include "views/grid/GridLegend.h"

#include "platform/Twips.h"
#include "views/grid/GridGeometry.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <utility>

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
    for (quint8 status = 0; status < ParagraphStatusCount; ++status) {
        const bool current = status == Current;
        const bool written = status == Written || status == DeadEnd || status == Orphan;
        addRow({0, current ? quint8{Empty} : status, false, current, {}}, statusName(status),
               written ? &m_unshaded : nullptr);
    }
    addRow({0, Empty, true, false, {}}, fixedName(), nullptr);
    const std::pair<double, QString> shades[]{
        {0.0, tr("Jamais lu")}, {0.01, tr("1 %")}, {0.1, tr("10 %")}, {1.0, tr("Toujours")}};
    for (const auto &[share, words] : shades)
        addRow({0, Written, false, false, share}, words, &m_shaded);
    setShaded(false);
}

void GridLegend::addRow(const GridCell &cell, const QString &words, QList<QWidget *> *when)
{
    auto *entries = qobject_cast<QGridLayout *>(layout());
    const int row = entries->rowCount();
    const QList<QWidget *> widgets{new CellSample(cell, this), new QLabel(words, this)};
    entries->addWidget(widgets.first(), row, 0);
    entries->addWidget(widgets.last(), row, 1);
    if (when != nullptr)
        when->append(widgets);
}

void GridLegend::setShaded(bool shaded)
{
    for (QWidget *widget : std::as_const(m_unshaded))
        widget->setVisible(!shaded);
    for (QWidget *widget : std::as_const(m_shaded))
        widget->setVisible(shaded);
}
