#pragma once

#include <QFont>
#include <QString>

struct Book;

// "Aucune police n'a ces caractères, qui manqueront : 中 文."; empty when all of the book's text
// can be drawn, in this font or in those that the system takes in its place.
QString missingCharactersSentence(const Book &book, const QFont &font);
