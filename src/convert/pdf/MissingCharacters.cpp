#include "convert/pdf/MissingCharacters.h"

#include "convert/book/Book.h"

#include <QCoreApplication>
#include <QGlyphRun>
#include <QList>
#include <QTextLayout>
#include <algorithm>

namespace
{
constexpr qsizetype MostNamed = 20;

// Those that leave no trace on paper are not missed.
bool isSeen(char32_t c)
{
    if (c <= 0x7e) // as nearly all are
        return false;
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Mark_NonSpacing: // drawn with the letter in front, or a variation of it
        return false;
    default:
        return true;
    }
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

void MissingCharacters::add(const BookParagraph &paragraph)
{
    for (const BookBlock &block : paragraph.blocks)
        for (const BookRun &run : block.runs)
            for (const char32_t c : run.text.toUcs4()) {
                if (!isSeen(c) || m_known.contains(c))
                    continue;
                m_known.insert(c);
                if (const QString text = QString::fromUcs4(&c, 1); !canBeDrawn(text, m_font))
                    m_missing.append(text);
            }
}

QString MissingCharacters::sentence() const
{
    if (m_missing.isEmpty())
        return {};
    QString named = m_missing.mid(0, MostNamed).join(u' ');
    if (m_missing.size() > MostNamed)
        named += QStringLiteral(" …");
    return QCoreApplication::translate("MissingCharacters",
                                       "Aucune police n'a ces caractères, qui manqueront : %1.")
        .arg(named);
}
