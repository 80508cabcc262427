#include "convert/pdf/MissingCharacters.h"

#include "convert/book/Book.h"

#include <QCoreApplication>
#include <QGlyphRun>
#include <QList>
#include <QSet>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>

namespace
{
constexpr qsizetype MostNamed = 20;

// Those that leave no trace on paper are not missed.
bool isSeen(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Mark_NonSpacing: // drawn with the letter in front, or a variation of it
        return false;
    default:
        return c > 0x7e;
    }
}

QList<char32_t> seenCharacters(const Book &book)
{
    QSet<char32_t> seen;
    for (const BookParagraph &paragraph : book.paragraphs)
        for (const BookBlock &block : paragraph.blocks)
            for (const BookRun &run : block.runs)
                for (const uint c : run.text.toUcs4())
                    if (isSeen(c))
                        seen.insert(c);
    QList<char32_t> characters(seen.cbegin(), seen.cend());
    std::sort(characters.begin(), characters.end());
    return characters;
}

// A font draws its glyph 0 for what it does not have.
bool canBeDrawn(const QString &character, const QFont &font)
{
    QTextLayout layout(character, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::none_of(runs.begin(), runs.end(),
                        [](const QGlyphRun &run) { return run.glyphIndexes().contains(0U); });
}
} // namespace

QString missingCharactersSentence(const Book &book, const QFont &font)
{
    QStringList missing;
    const QList<char32_t> characters = seenCharacters(book);
    for (const char32_t c : characters)
        if (const QString text = QString::fromUcs4(&c, 1); !canBeDrawn(text, font))
            missing.append(text);
    if (missing.isEmpty())
        return {};
    QString named = missing.mid(0, MostNamed).join(u' ');
    if (missing.size() > MostNamed)
        named += QStringLiteral(" …");
    return QCoreApplication::translate("MissingCharacters",
                                       "Aucune police n'a ces caractères, qui manqueront : %1.")
        .arg(named);
}
