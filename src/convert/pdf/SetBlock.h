#pragma once

#include "convert/pdf/BlockText.h"

#include <QPointF>
#include <QRectF>
#include <memory>
#include <vector>

class QPainter;

// A place on a page that leads to a paragraph.
struct PageLink {
    QRectF place;
    int number = 0;
};

// A block of a paragraph in lines. All lengths are twips.
class SetBlock
{
public:
    // width is that of the text on a page.
    SetBlock(const BookBlock &block, const BlockText &text, const PageSetup &setup,
             BookFonts &fonts, double width);

    int lineCount() const { return static_cast<int>(m_lines.size()); }
    double height(int line) const { return at(line).height; }
    bool isBlank() const { return m_isBlank; }
    QString text(int line) const; // with a soft hyphen at the end where a word is parted

    // at is the upper left corner of the line, with its indent. Between the first line that is
    // drawn, or asked for links, and the last one of the block a good deal of memory is kept.
    void draw(QPainter &painter, int line, QPointF at) const;
    QList<PageLink> links(int line, QPointF at) const;

private:
    struct Line {
        double height;
        double baseline; // below its top
    };
    const Line &at(int line) const { return m_lines.at(static_cast<std::size_t>(line)); }

    void setLines(const ParagraphState &format, double width);
    void forgetShapes(QPainter &painter) const;
    void measure(const BookBlock &block, const QList<BlockText::Size> &sizes,
                 const BookFonts &fonts);

    std::unique_ptr<QTextLayout> m_layout;
    std::vector<Line> m_lines;
    QList<BlockText::Reference> m_references;
    double m_bulletX = -1; // below 0: none
    bool m_isBlank;
};
