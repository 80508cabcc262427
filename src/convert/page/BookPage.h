#pragma once

#include "convert/book/Book.h"

#include <QByteArray>
#include <QList>

// What a page for reading has besides the book.
struct PageChoice {
    QList<int> starts; // where readings begin; those that are not in the book do not count
    bool sheet = true; // room for the reader's notes, and a die
};

// The book as one HTML file for a browser, in UTF-8, that asks for nothing outside itself. With its
// script it shows one paragraph at a time; without, and printed, it is the whole book. The same
// book gives the same bytes. It has at least one paragraph. A cover that is no picture is left out.
QByteArray pageOf(const Book &book, const BookFacts &facts, const PageChoice &choice);
