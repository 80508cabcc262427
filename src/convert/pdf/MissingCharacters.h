#pragma once

#include <QFont>
#include <QSet>
#include <QString>
#include <QStringList>

struct BookParagraph;

// The characters of a book that cannot be drawn, neither in its font nor in those that the system
// takes in its place. Each character is tried once, when it first comes.
class MissingCharacters
{
public:
    explicit MissingCharacters(const QFont &font) : m_font(font) {}

    void add(const BookParagraph &paragraph);

    // "Aucune police n'a ces caractères, qui manqueront : 中 文."; empty when there are none.
    QString sentence() const;

private:
    QFont m_font;
    QSet<char32_t> m_known;
    QStringList m_missing;
};
