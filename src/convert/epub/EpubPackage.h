#pragma once

#include "convert/epub/EpubPages.h"

#include <QByteArray>
#include <QDateTime>

// The file of an EPUB that says what book it is and which files belong to it. The book's identity
// comes from title and author, so that a later edition replaces an earlier one.
QByteArray epubPackage(const BookFacts &facts, const EpubPages &pages, const QDateTime &modified);

// The file that says where that one is.
QByteArray epubContainer(const QString &package);
