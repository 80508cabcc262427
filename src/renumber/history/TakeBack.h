#pragma once

#include "platform/LaterFile.h"
#include "store/HistoryStep.h"

#include <QList>
#include <memory>

struct Variables;

// The texts, marks and lists of a whole adventure as they are, or as they were before commands that
// are taken back one after the other. No text is in memory: each is read where it lies.
struct BookTexts {
    struct Paragraph {
        ParagraphFacts facts;             // the checksum is empty until it is asked for
        std::function<QByteArray()> text; // reads it, when it is written. Throws UsmiraError.
        int origin = 0;                   // the number that it has as stored now
        bool asStored = true;             // its text is the one that is stored there
    };
    // As it is stored now.
    static BookTexts stored(const Variables &variables);

    Paragraph &at(int n) { return paragraphs.at(n); }
    const Paragraph &at(int n) const { return paragraphs.at(n); }

    ParagraphArray<Paragraph, 2001> paragraphs;
    WrittenRange range;
};

// The same with the checksum of its text. One that cannot be read has a checksum that no text has.
const ParagraphFacts &knownFacts(BookTexts::Paragraph &paragraph);

// Takes commands back in a book, from the newest to the oldest; nothing that is stored changes.
//
// After a renumbering, a paragraph that is as the command left it gets its old text and list; any
// other goes to its old number, with its references rewritten by the engine. A mark is the old one
// where it is as the command left it, else it goes along with its paragraph.
// After any other command, a paragraph that is as it left it is as before, and one that was edited
// since is so only where that is wanted.
class TakeBack
{
public:
    enum class Edited { Stay, AsBefore };

    TakeBack(const Variables &variables, Edited edited);

    // The book before the command. Checksums that are asked for stay in book. Throws StepLost; and
    // UnreadableTexts when a text that cannot be read would have to be rewritten. What comes of it
    // is read through this object.
    BookTexts before(BookTexts &book, const std::shared_ptr<StepFile> &file);

    // The numbers, as stored now, of those that were edited since a command that was no
    // renumbering; ascending.
    const QList<int> &edited() const { return m_edited; }

private:
    using StepParagraph = HistoryStep::Paragraph;

    bool isAsLeft(BookTexts::Paragraph &paragraph, const ParagraphFacts &left) const;
    BookTexts::Paragraph restored(const std::shared_ptr<StepFile> &file, int n) const;
    void renumber(BookTexts &book, const std::shared_ptr<StepFile> &file, BookTexts &result);
    void takeBackMarks(const BookTexts &book, const HistoryStep &step, BookTexts &result) const;
    void restoreTexts(BookTexts &book, const std::shared_ptr<StepFile> &file, BookTexts &result);
    BookTexts::Paragraph rewritten(const QByteArray &rtf);

    const Variables &m_variables;
    const Edited m_behaviour;
    QList<int> m_edited;
    bool m_otherPhrase = false;
    std::optional<LaterFile> m_rewritten; // texts, one behind the other; never finished
};
