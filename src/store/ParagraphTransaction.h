#pragma once

#include "store/Journal.h"
#include "store/Variables.h"

#include <map>
#include <optional>
#include <set>

// Changes many paragraphs at once, or none. New texts are parked beside the working files, so that
// none is held in memory; until commit() neither the adventure nor its files change, and a
// transaction that goes without one takes back what it parked. After commit() the change outlives
// a crash: it is completed now or at the next start of the program.
//
// One transaction at a time. The current paragraph must have been saved.
class ParagraphTransaction
{
public:
    // Throws FileError when an earlier change is still to be placed and cannot be.
    explicit ParagraphTransaction(Variables &variables);
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

    // Commits and puts everything in place, in the files and in Variables: texts, Written,
    // Extracted, Unmixable, refIndex, a range widened where need be, AdventureModified. Throws
    // UsmiraError before anything has changed: FileError, or because two texts would have one
    // number. A failure after the commit throws nothing: the rest is placed before a working file
    // is used next, see Variables::JournalLeft.
    void commit();

    // RTF of the paragraph that had number n before the commit, also when the adventure has been
    // saved since: until forgetBefore(), which the end of the transaction and the next one call.
    // Throws UsmiraError when it cannot be read.
    QByteArray textBefore(int n) const;
    void forgetBefore();

private:
    struct Range {
        qint16 lowest;
        qint16 highest;
    };
    struct Before {
        Variables state;
        std::set<int> displaced; // numbers whose working files made room
    };
    Range range() const { return {m_variables.LowestWritten, m_variables.HighestWritten}; }
    Journal journal() const;
    void rememberBefore(const Journal &journal);
    void refuseLostTexts(const Journal &journal) const;
    void keepStates(const Journal &journal) const;
    void place(const Journal &journal);
    void takeOver(Variables &variables, const Journal &journal) const;
    void announce(const Journal &journal) const;

    Variables &m_variables;
    std::map<int, Journal::Placed> m_changes; // by the number before
    std::map<int, bool> m_emptied;            // number and whether fixed
    std::optional<Range> m_rangeBefore;       // when it was widened
    std::optional<Before> m_before;           // once committed
    bool m_committed = false;
};
