#pragma once

#include "convert/pdf/Pagination.h"
#include "convert/pdf/SetBlock.h"

// A paragraph in lines, under its number. All lengths are twips.
class SetParagraph
{
public:
    // Without a number where it is 0.
    SetParagraph(const BookParagraph &paragraph, const PageSetup &setup, BookFonts &fonts,
                 const Hyphenation *hyphenation, double width);
    SetParagraph(SetParagraph &&) = default;
    SetParagraph &operator=(SetParagraph &&) = default;

    int number() const { return m_number; }
    FlowParagraph flow() const;

    // Of a piece of it on a page; at is the upper left corner of the text there.
    void draw(QPainter &painter, const FlowPiece &piece, QPointF at) const;
    QList<PageLink> links(const FlowPiece &piece, QPointF at) const;

private:
    struct Line {
        const SetBlock *block;
        int line;
    };
    // Calls action with each line of the piece and its upper left corner.
    template <typename Action>
    void forEachLine(const FlowPiece &piece, QPointF at, const Action &action) const;
    void drawNumber(QPainter &painter, QPointF at) const;

    int m_number;
    NumberStyle m_style;
    QFont m_numberFont;
    double m_width;
    double m_numberHeight = 0; // its line
    double m_numberBaseline = 0;
    double m_heading = 0; // with what is free below
    std::vector<SetBlock> m_blocks;
    std::vector<Line> m_lines;
};
