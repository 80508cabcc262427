#pragma once

#include "convert/ExportRange.h"
#include "platform/Progress.h"
#include "richtext/TextStates.h"
#include "store/extras/AdventureExtras.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

struct Variables;

// The adventure as a book that leaves the editor: what print, EPUB and the reading page are made
// of.

// Text of one look. A reference is a run of its own: the digits alone, or all of what is written
// there where the number is read from more.
struct BookRun {
    QString text; // not empty
    CharState chars;
    int refersTo = 0;    // 1..2000 for a reference, else 0
    bool linked = false; // the paragraph that it refers to is in the book
};

// What ends with a paragraph mark of the text.
struct BookBlock {
    ParagraphState format;
    CharState mark; // what an empty block looks like
    QList<BookRun> runs;
};

// A numbered paragraph. Empty blocks at its end are left out.
struct BookParagraph {
    int number = 0;
    QList<BookBlock> blocks;
};

struct Book {
    QList<BookParagraph> paragraphs; // ascending
    QList<int> emptyTargets; // where references to unwritten paragraphs lead, a number for each
    int halfPoints = CharState::DefaultHalfPoints; // the size that most of the text has
};

// A paragraph from its RTF; nothing is linked yet. Throws FormatError when the bytes are no RTF;
// empty bytes are an empty paragraph.
BookParagraph bookParagraph(int number, QByteArrayView rtf, const QString &phrase);

// The written paragraphs of the range, without paragraph 0. Throws UnreadableTexts with every text
// that cannot be read.
Book readBook(const Variables &variables, const ExportRange &range, const Progress &progress);

// Whether a word is the code of a language, with a writing and a country or without: "fr", "fr-CA".
bool isLanguageCode(const QString &code);

// What the book says of itself, with a title and a language in any case: the adventure's file and
// French where the author gave none.
BookFacts bookFacts(const Variables &variables);

// A UUID that title and author make: the same for each edition of the book.
QString bookIdentity(const BookFacts &facts);

// "La Tour, par A. Morel", for the dialogs.
QString bookLine(const BookFacts &facts);

// Where references of the range to unwritten paragraphs lead, a number for each.
QList<int> emptyTargets(const Variables &variables, const ExportRange &range);

// "2 renvois mènent à des paragraphes vides : 83, 90."; empty where there are none.
QString emptyTargetsSentence(const QList<int> &targets);
QString emptyTargetsSentence(const Book &book);
