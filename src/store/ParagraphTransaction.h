#pragma once

#include "store/CommandHistory.h"
#include "store/Journal.h"
#include "store/Variables.h"

#include <map>
#include <optional>

// Changes many paragraphs at once, or none. New texts are parked beside the working files, so that
// none is held in memory; until commit() neither the adventure nor its files change, and a
// transaction that goes without one takes back what it parked. After commit() the change outlives
// a crash: it is completed now or at the next start of the program.
//
// One transaction at a time. The current paragraph must have been saved.
class ParagraphTransaction
{
public:
    // What the change is called in the history, and the numbers of all paragraphs from commit() on
    // where it gives them others. What belongs to the adventure beside its paragraphs goes by them.
    struct Name {
        QString title;
        std::optional<NumberMap> numbers;
    };
    // Throws FileError when an earlier change is still to be placed and cannot be.
    ParagraphTransaction(Variables &variables, Name name);
    ~ParagraphTransaction();
    ParagraphTransaction(const ParagraphTransaction &) = delete;
    ParagraphTransaction &operator=(const ParagraphTransaction &) = delete;

    struct Change {
        int before;         // its number now, 0..2000
        int after;          // its number from commit() on, mostly the same
        QByteArray rtf;     // its text from then on
        QString references; // and its entry of refIndex, which belongs to that text
        bool fixed;         // and whether it is Unmixable
    };
    // Parks the new text of a paragraph; a second change of the same paragraph replaces the first.
    // A number that its paragraph leaves and that none takes is empty and free afterwards. Throws
    // FileError.
    void change(const Change &change);

    // Paragraph n loses its text and its references. A text that takes the number comes all the
    // same.
    void empty(int n, bool fixed);

    // RTF of the paragraph that has number n now, with the changes so far. Throws FileError.
    QByteArray rtf(int n) const;

    // Numbers low..high belong to the written range from now on. After commit() it goes from the
    // lowest to the highest number with a text; without a commit it is as it was.
    void widenRange(int low, int high);

    // The written range is this one from commit() on.
    void setRange(const WrittenRange &range) { m_rangeAfter = range; }

    // Commits and puts everything in place, in the files and in Variables: texts, Written,
    // Extracted, Unmixable, refIndex, a range widened where need be, AdventureModified. Throws
    // UsmiraError before anything has changed: FileError, or because two texts would have one
    // number. A failure after the commit throws nothing: the rest is placed before a working file
    // is used next, see Variables::JournalLeft.
    //
    // A change in which something differs is noted in the history, with its step. One whose step
    // cannot be written is done all the same, and cannot be taken back.
    void commit();

    // The same for a change that takes back others or does them once more: it is not noted itself,
    // the history is another one from then on. The steps that it keeps have been written.
    void commit(const CommandHistory &history);

private:
    WrittenRange range() const { return {m_variables.LowestWritten, m_variables.HighestWritten}; }
    Journal journal() const;
    void refuseLostTexts(const Journal &journal) const;
    HistoryStep stepOf(const Journal &journal) const;
    void commit(const Journal &journal);
    void keepStates(const Journal &journal) const;
    void place(const Journal &journal);
    void takeOver(Variables &variables, const Journal &journal) const;
    void announce(const Journal &journal) const;

    Variables &m_variables;
    const Name m_name;
    std::map<int, Journal::Placed> m_changes;  // by the number before
    std::map<int, bool> m_emptied;             // number and whether fixed
    std::optional<WrittenRange> m_rangeBefore; // when it was widened
    std::optional<WrittenRange> m_rangeAfter;  // when it was set
    CommandHistory m_history;                  // from the commit on
    bool m_committed = false;
};
