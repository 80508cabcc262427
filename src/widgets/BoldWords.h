#pragma once

#include <QString>

class QPainter;
class QRect;
class QStyleOptionViewItem;

// A text on one line in which a part stands out.
struct BoldWords {
    QString text;
    int boldStart;
    int boldLength;
};

// Paints it with the painter's font and pen into the room, centred between above and below; what
// does not fit is cut off.
void paintWords(QPainter &painter, const QRect &room, const BoldWords &words);

// Paints a cell of a list without its words, and gives the painter their font and colour.
void paintCell(QPainter &painter, const QStyleOptionViewItem &option);
