#pragma once

#include "store/ParagraphTexts.h"
#include "store/Variables.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <optional>

// A whole adventure as plain values, and what taking a command back makes of it: the rules once
// more, in the plainest way.
struct BookModel {
    struct Paragraph {
        bool fixed = false;
        QString text; // empty: not written
        QString references;
        QByteArray rtf;
        bool operator==(const Paragraph &) const = default;
        bool sameText(const Paragraph &other) const
        {
            return text == other.text && rtf == other.rtf && references == other.references;
        }
    };
    bool operator==(const BookModel &) const = default;

    static BookModel of(const Variables &variables);

    QList<Paragraph> paragraphs;
    int lowest = 1;
    int highest = 1;
    int current = 1; // CurrentParagraph
};

// A command between two books; the numbers are empty where it moved none.
struct CommandModel {
    BookModel before;
    BookModel after;
    QList<int> numbers;
};

// The book before the command. edited gets the numbers that were edited since, and asBefore says
// whether they are to be as before too.
BookModel takenBack(const BookModel &now, const CommandModel &command, bool asBefore,
                    QList<int> &edited);

// What is wrong with a book, compared with what was foretold; empty: nothing.
QString difference(const BookModel &book, const BookModel &foretold);
