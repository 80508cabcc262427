#pragma once

#include "convert/book/Book.h"
#include "convert/book/BookHtml.h"
#include "convert/book/BookWords.h"

#include <QByteArray>
#include <QList>
#include <QString>

// A file of an EPUB that is read in its turn.
struct EpubPage {
    enum class Kind { Front, Text, Paragraphs }; // the first kind is not in the contents
    QString name;                                // "p0001.xhtml"
    QString title;
    Kind kind;
    QByteArray bytes;
};

// The pages of an EPUB, and the lists that lead to them.
class EpubPages
{
public:
    enum class Files { Hundreds, Each };

    // Book and facts must outlive it. What progress throws ends the work.
    EpubPages(const Book &book, const BookFacts &facts, Files files, const Progress &progress);
    EpubPages(const EpubPages &) = delete;
    EpubPages &operator=(const EpubPages &) = delete;

    // In the order in which they are read.
    const QList<EpubPage> &pages() const { return m_pages; }
    // Contents, numbers and landmarks.
    QByteArray navigation() const;
    QByteArray styleSheet() const;

    // "cover.png", or nothing where there is no cover.
    QString coverName() const;

private:
    // The kind of page in the words of the format.
    void appendPage(EpubPage::Kind kind, const QString &name, const QString &title,
                    const QString &type, const QString &body);
    void appendCover();
    void appendTitle();
    void appendText(const QString &name, const QString &title, const QString &type,
                    const QString &text);
    void appendParagraphs(const Progress &progress);
    QByteArray page(const QString &title, const QString &bodyAttributes, const QString &body) const;
    QString section(const BookParagraph &paragraph);
    QString contents() const;
    QString hundreds() const;
    QString numbers() const;
    QString landmarks() const;
    QString fileOf(int number) const;
    QString address(int number) const;

    const Book &m_book;
    const BookFacts &m_facts;
    Files m_files;
    BookWords m_words;
    BookHtml m_html;
    QList<EpubPage> m_pages;
};
