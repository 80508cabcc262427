#include "widgets/BoldWords.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTextLayout>

void paintWords(QPainter &painter, const QRect &room, const BoldWords &words)
{
    QTextLayout layout(words.text, painter.font());
    QTextLayout::FormatRange bold;
    bold.start = words.boldStart;
    bold.length = words.boldLength;
    bold.format.setFontWeight(QFont::Bold);
    layout.setFormats({bold});
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setNumColumns(static_cast<int>(words.text.size()));
    layout.endLayout();
    painter.save();
    painter.setClipRect(room, Qt::IntersectClip);
    layout.draw(&painter, QPointF(room.x(), room.y() + (room.height() - line.height()) / 2));
    painter.restore();
}

void paintCell(QPainter &painter, const QStyleOptionViewItem &option)
{
    const QStyle *style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, option.widget);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool active = option.state.testFlag(QStyle::State_Active);
    painter.setFont(option.font);
    painter.setPen(option.palette.color(active ? QPalette::Active : QPalette::Inactive,
                                        selected ? QPalette::HighlightedText : QPalette::Text));
}
