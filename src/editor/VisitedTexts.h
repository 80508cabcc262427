#pragma once

#include "editor/PageDocument.h"
#include "editor/TextPlace.h"
#include "store/ParagraphArray.h"

#include <QByteArray>
#include <list>
#include <memory>
#include <optional>

// What the author left behind in a text.
struct VisitedText {
    QByteArray rtf; // the text as it is stored
    TextPlace place;
    std::unique_ptr<PageDocument> document; // with the undo list; none when there is nothing in it
};

// The texts visited last, for the author to find again as he left them. The oldest ones are
// forgotten when there are too many, or when they take too much of the memory.
class VisitedTexts
{
public:
    static constexpr std::size_t Most = 50;
    static constexpr qint64 MostBytes = 64 * 1024 * 1024; // by PageDocument::memory()

    // The author goes away from paragraph n.
    void leave(int n, VisitedText text);

    // The author comes to paragraph n, whose stored text is rtf. What he left there is no longer
    // kept here, and nothing is given when he left another text.
    std::optional<VisitedText> comeTo(int n, const QByteArray &rtf);

    // Texts have other numbers.
    void renumber(const ParagraphArray<qint16, 2001> &newNumbers);

    void clear() { m_texts.clear(); }

private:
    struct Entry {
        int number;
        qint64 bytes;
        VisitedText text;
    };
    void forgetOldest();

    std::list<Entry> m_texts; // the latest first
};

// The number that the text of paragraph n has from now on; -1 when there is none any more, and
// another text in its place.
int numberAfter(int n, const ParagraphArray<qint16, 2001> &newNumbers);
