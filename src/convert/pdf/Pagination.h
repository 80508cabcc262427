#pragma once

#include <QList>

// How lines become pages. It knows heights alone, in any unit.

struct FlowLine {
    double height = 0;
    bool begins = false; // a block of the text; an only line both begins and ends it
    bool ends = false;
    bool blank = false; // takes no room where a page begins or ends with it
};

struct FlowParagraph {
    double heading = 0; // the height of its number with what is free below it, 0 without
    QList<FlowLine> lines;
};

struct PageRoom {
    double height = 0;
    double gap = 0; // between paragraphs: as it should be, and how far it gives way
    double leastGap = 0;
    double mostGap = 0;
    double mostSpread = 0; // by what share of its height a line may have more, where gaps are none
                           // or not enough
    bool pageEach = false; // a paragraph begins a page
    int keptLines = 8;     // paragraphs of so many lines are parted only for want of another way
};

// Some lines of a paragraph on a page. With the line 0 comes its number.
struct FlowPiece {
    int paragraph = 0;
    int line = 0;
    int lines = 0;
    double y = 0;      // of the number, or else of the first line, from the top of the text
    double spread = 0; // the share that all heights have more
};

using FlowPage = QList<FlowPiece>;

// The pages that have the fewest faults over the whole book. Never, unless there is no other way: a
// number without two lines of its text, a first or last line of a block or a paragraph on a page
// without the next to it. Pages end level as far as gaps and lines give way, save for the last page
// and those of which each begins a paragraph. A line higher than the page has a page to itself.
QList<FlowPage> paginate(const QList<FlowParagraph> &paragraphs, const PageRoom &room);
