#pragma once

#include "convert/pdf/BookPages.h"
#include "convert/pdf/Hyphenation.h"
#include "convert/pdf/MissingCharacters.h"
#include "platform/Progress.h"

// Makes pages of a book, a paragraph at a time, so that whoever waits can do something else
// meanwhile or stop it.
class BookTypesetter
{
public:
    // The book must outlive this, the pages need not. facts is with a title. The setup has no
    // fault.
    BookTypesetter(const Book &book, const BookFacts &facts, const PageSetup &setup);

    BookTypesetter(const BookTypesetter &) = delete;
    BookTypesetter &operator=(const BookTypesetter &) = delete;

    // Sets a paragraph. False: all are set.
    bool step();
    int done() const { return m_next; }

    // Sets all, and tells how many of how many.
    void setAll(const Progress &progress);

    // Once all are set: how the lines become pages.
    BookPages pages();

    // What is not as the author wants it: a font, patterns of the language. May be empty.
    QString remarks() const;

private:
    void addText(BookPages::Kind kind, const QString &text);
    const Hyphenation *hyphenation() const;

    const Book &m_book;
    BookFacts m_facts;
    PageSetup m_setup;
    Hyphenation m_hyphenation;
    BookFonts m_fonts;
    MissingCharacters m_missing;
    std::vector<BookPages::Section> m_sections;
    std::vector<SetParagraph> m_paragraphs;
    int m_next = 0;
};
