#include "widgets/BoldWords.h"

#include <QPainter>
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
