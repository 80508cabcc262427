#pragma once

#include "convert/pdf/PageSetup.h"
#include "richtext/TextStates.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QSet>
#include <QTextCharFormat>

struct Book;

// The type of a printed book. Sizes are in twips, which are the pixels of the layout.
class BookFonts
{
public:
    BookFonts(const Book &book, const PageSetup &setup);

    // How characters look: in the book's font and size where they are in those that most of the
    // text has, else as they differ from them; no larger than there is room for on a page.
    const QTextCharFormat &format(const CharState &chars);

    // The look of most of the text.
    CharState usual() const;

    // The distance of lines of such characters.
    double leading(int halfPoints) const;
    double leading() const { return m_leading; }

    // How far below its top a line of such a height has its baseline.
    double baseline(double height) const;

    QFont text() const;
    QFont number();
    QFont margin() const; // what stands in the margins

    // "La police « Garamond » manque : « DejaVu Serif » la remplace.", or that letters had no room;
    // empty when all is as it was asked for.
    QString remarks() const;

private:
    int fitting(int halfPoints) const;
    QFont fontOf(const QString &family, double points);

    const PageSetup &m_setup;
    QString m_usualFamily; // in the texts
    int m_usualHalfPoints;
    int m_mostHalfPoints; // letters are no larger, whatever they are in the texts
    bool m_hasShrunk = false;
    double m_leading;
    double m_ascentShare; // of the height of a line of text
    QSet<QString> m_asked;
    QHash<QString, QTextCharFormat> m_formats;
};
