#pragma once

#include "convert/rtf/RtfCompilation.h"

#include <QSizeF>
#include <QString>
#include <array>

struct Variables;

// How the pages of a printed book look. Lengths are millimetres, sizes of type points.
struct PageSetup {
    enum class References { AsWritten, Bold, Arrow };
    enum class Head { Nothing, Numbers, Title }; // what stands above the text
    enum class Flow { OneAfterAnother, PageEach };

    QSizeF paper{148, 210};
    double inside = 18; // the margin at the spine; on pages of one side the left one
    double outside = 15;
    double top = 20;
    double foot = 20;
    bool twoSided = true;

    QString font;         // of text in the font that most of the book has; others stay
    double points = 10.5; // of text in the size that most of the book has; others go along
    double leading = 13.5;
    bool justified = true;
    bool hyphenated = true;
    bool black = false; // all of it

    NumberStyle number{{}, 13, true, false, false, true};
    References references = References::AsWritten;
    Head head = Head::Numbers;
    bool pageNumbers = true;
    Flow flow = Flow::OneAfterAnother;

    // What the margins leave to the text.
    double textWidth() const { return paper.width() - inside - outside; }
    double textHeight() const { return paper.height() - top - foot; }

    bool operator==(const PageSetup &) const = default;
};

// The height that a number takes above its text, in lines of the text.
double numberLines(const PageSetup &setup);

// The papers that have names, "A5".
struct Paper {
    const char *name;
    QSizeF millimetres;
};
const std::array<Paper, 4> &knownPapers();

// A5, in the author's font.
PageSetup defaultPageSetup(const Variables &variables);

// What keeps pages from being made so, for the author; empty when nothing does.
QString pageSetupFault(const PageSetup &setup);
