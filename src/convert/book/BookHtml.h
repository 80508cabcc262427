#pragma once

#include "convert/book/Book.h"

#include <QRgb>
#include <functional>
#include <set>

// The texts of a book as XHTML that HTML takes too, for the EPUB and for the page for reading. All
// measures are in em, so that the reader's own size of type counts. What stands in a class is
// drawn by the style sheet:
//
//   m, r     a line in the middle, to the right     w       its spaces are kept
//   t        text up to a tab stop                  kFF0000 a colour
//
// Tab stops are where they are in the editor as far as that can be told without the font: the width
// of a text is estimated.
class BookHtml
{
public:
    // Where a reference leads.
    using Address = std::function<QString(int)>;

    BookHtml(int halfPoints, Address address);

    // The blocks of a paragraph, without its number.
    QString blocks(const BookParagraph &paragraph);

    // Those that blocks() has met.
    const std::set<QRgb> &colours() const { return m_colours; }

    // ".kFF0000{color:#FF0000}", a line for each colour as it is shown, within what where selects.
    QString colourRules(const std::function<QColor(QRgb)> &shown, const QString &where = {}) const;

private:
    QString item(const BookBlock &block);
    QString line(const BookBlock &block);
    QString content(const BookBlock &block);
    QString cells(const BookBlock &block);
    QString run(const BookRun &run);
    QString attributes(const CharState &chars);
    double inScreen(int twips) const; // of an indent as much as a small screen has room for
    QString em(double twips) const;

    int m_halfPoints;
    Address m_address;
    std::set<QRgb> m_colours;
};

// Text without formatting, a p for each line.
QString plainHtml(const QString &text);
