#include "convert/pdf/BlockText.h"

#include "convert/pdf/Hyphenation.h"

#include <algorithm>

namespace
{
constexpr QChar SoftHyphen(QChar::SoftHyphen);
constexpr QChar NoBreakSpace(QChar::Nbsp);

// Where soft hyphens may come in the whole of a block, as an author has written it.
QList<qsizetype> hyphenPlaces(const BookBlock &block, const Hyphenation &hyphenation)
{
    QString text;
    QList<qsizetype> whole; // begin and end of what is not parted, in turn
    for (const BookRun &run : block.runs) {
        if (run.refersTo != 0) {
            qsizetype begin = text.size();
            while (begin > 0 && !text.at(begin - 1).isLetter())
                --begin;
            while (begin > 0 && text.at(begin - 1).isLetter())
                --begin;
            whole << begin << text.size() + run.text.size();
        }
        text += run.text;
    }
    QList<qsizetype> places = hyphenation.places(text);
    for (qsizetype i = 0; i < whole.size(); i += 2)
        places.erase(std::remove_if(places.begin(), places.end(),
                                    [&](qsizetype place) {
                                        return place > whole.at(i) && place < whole.at(i + 1);
                                    }),
                     places.end());
    return places;
}

class TextBuilder
{
public:
    TextBuilder(const PageSetup &setup, BookFonts &fonts, QList<qsizetype> places)
        : m_setup(setup), m_fonts(fonts), m_places(std::move(places))
    {
    }

    void add(const BookRun &run)
    {
        if (run.refersTo != 0)
            addReference(run);
        else
            append(softened(run.text), run.chars);
        m_read += run.text.size();
    }

    BlockText take() { return std::move(m_block); }

private:
    // What a text layout would take for more than characters are a space to it.
    QString softened(const QString &text)
    {
        QString soft;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (m_next < m_places.size() && m_places.at(m_next) == m_read + i) {
                soft += SoftHyphen;
                ++m_next;
            }
            const QChar c = text.at(i);
            const bool isMark = c == QChar::LineSeparator || c == QChar::ParagraphSeparator ||
                                c == QChar::ObjectReplacementCharacter;
            soft += isMark ? QChar(u' ') : c;
        }
        return soft;
    }

    void addReference(const BookRun &run)
    {
        CharState chars = run.chars;
        QString text = run.text;
        if (m_setup.references != PageSetup::References::AsWritten)
            chars.bold = true;
        if (m_setup.references == PageSetup::References::Arrow)
            text.prepend(QStringLiteral("→") + NoBreakSpace);
        text.replace(u' ', NoBreakSpace);
        if (m_block.text.endsWith(u' '))
            m_block.text.back() = NoBreakSpace;
        if (run.linked)
            m_block.references.append({m_block.text.size(), text.size(), run.refersTo});
        append(text, chars);
    }

    void append(const QString &text, const CharState &chars)
    {
        m_block.formats.append({static_cast<int>(m_block.text.size()),
                                static_cast<int>(text.size()), m_fonts.format(chars)});
        m_block.sizes.append({m_block.text.size(), chars.halfPoints});
        m_block.text += text;
    }

    const PageSetup &m_setup;
    BookFonts &m_fonts;
    QList<qsizetype> m_places;
    qsizetype m_next = 0;
    qsizetype m_read = 0; // of the text as it was written
    BlockText m_block;
};
} // namespace

BlockText blockText(const BookBlock &block, const PageSetup &setup, BookFonts &fonts,
                    const Hyphenation *hyphenation)
{
    TextBuilder builder(setup, fonts,
                        hyphenation != nullptr ? hyphenPlaces(block, *hyphenation)
                                               : QList<qsizetype>());
    for (const BookRun &run : block.runs)
        builder.add(run);
    return builder.take();
}
