#pragma once

#include <QByteArray>
#include <QStringList>

// A manual page, from the form in which the bundled texts are kept (see Markup.h):
//   "# usmira 1"                   the page's name and section, on its first line
//   "## NAME"                      a section
//   "Options:"                     a single word with a colon: a smaller section
//   "- **--oui**: what it does"    an entry, its head parted by the colon
// Every other line is a paragraph; of the inline marks bold and italic are taken.
// Throws FormatError on an entry without a head.
QByteArray manPage(const QStringList &lines);

// The lines below "## title", up to the next title. Throws FormatError where there is no such
// title.
QStringList sectionOf(const QStringList &lines, const QString &title);
