#include "convert/pdf/BookTypesetter.h"

#include <QCoreApplication>
#include <QStringList>

namespace
{
// A text of the facts as a paragraph without a number.
BookParagraph textParagraph(BookPages::Kind kind, const QString &text, const CharState &usual)
{
    BookParagraph paragraph;
    CharState chars = usual;
    const bool isDedication = kind == BookPages::Kind::Dedication;
    chars.italic = isDedication;
    const QStringList lines = text.split(u'\n');
    for (const QString &line : lines) {
        BookBlock block;
        block.mark = chars;
        if (isDedication)
            block.format.alignment = Qt::AlignHCenter;
        if (!line.isEmpty())
            block.runs.append({line, chars});
        paragraph.blocks.append(block);
    }
    return paragraph;
}
} // namespace

BookTypesetter::BookTypesetter(const Book &book, const BookFacts &facts, const PageSetup &setup)
    : m_book(book), m_facts(facts), m_setup(setup), m_hyphenation(facts.language),
      m_fonts(book, m_setup), m_missing(m_fonts.text())
{
    m_paragraphs.reserve(static_cast<std::size_t>(book.paragraphs.size()));
}

const Hyphenation *BookTypesetter::hyphenation() const
{
    return m_setup.hyphenated ? &m_hyphenation : nullptr;
}

bool BookTypesetter::step()
{
    if (m_next == m_book.paragraphs.size())
        return false;
    const BookParagraph &paragraph = m_book.paragraphs.at(m_next++);
    m_missing.add(paragraph);
    m_paragraphs.emplace_back(paragraph, m_setup, m_fonts, hyphenation(),
                              BookPages::textWidth(m_setup));
    return m_next < m_book.paragraphs.size();
}

void BookTypesetter::setAll(const Progress &progress)
{
    for (bool more = true; more;) {
        more = step();
        progress(m_next, static_cast<int>(m_book.paragraphs.size()));
    }
}

void BookTypesetter::addText(BookPages::Kind kind, const QString &text)
{
    if (text.trimmed().isEmpty())
        return;
    BookPages::Section section{kind, {}};
    const BookParagraph paragraph = textParagraph(kind, text, m_fonts.usual());
    m_missing.add(paragraph);
    section.paragraphs.emplace_back(paragraph, m_setup, m_fonts, hyphenation(),
                                    BookPages::textWidth(m_setup));
    m_sections.push_back(std::move(section));
}

BookPages BookTypesetter::pages()
{
    addText(BookPages::Kind::Dedication, m_facts.dedication);
    addText(BookPages::Kind::Matter, m_facts.before);
    m_sections.push_back({BookPages::Kind::Paragraphs, std::move(m_paragraphs)});
    addText(BookPages::Kind::Matter, m_facts.after);
    return {m_fonts, m_setup, m_facts.title, std::move(m_sections)};
}

QString BookTypesetter::remarks() const
{
    QStringList remarks{m_missing.sentence(), m_fonts.remarks()};
    if (m_setup.hyphenated && !m_hyphenation.isThere())
        remarks.append(QCoreApplication::translate("BookTypesetter",
                                                   "Les mots ne sont pas coupés : le dictionnaire "
                                                   "de césures manque (%1).")
                           .arg(m_facts.language));
    remarks.removeAll(QString());
    return remarks.join(u' ');
}
