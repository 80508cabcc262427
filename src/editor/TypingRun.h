#pragma once

#include <QString>

// Divides what the author types into the steps of the undo list: a step ends behind the blanks
// after a word, when the author pauses, and when a run of characters becomes long.
class TypingRun
{
public:
    // Whether text, typed at a position of the document at a time in milliseconds, begins a step.
    bool begins(const QString &text, int position, quint64 when);

    // Something else was done to the text or to the caret: what is typed next begins a step.
    void end() { m_length = 0; }

    // The time of what was typed last.
    quint64 when() const { return m_when; }

private:
    qsizetype m_length = 0; // characters in this step
    qsizetype m_behind = 0; // where the next one would continue it
    quint64 m_when = 0;
    bool m_wordEnded = false;
};
