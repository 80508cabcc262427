#pragma once

#include "store/HistoryStep.h"

class WorkReport;
struct Variables;

// The commands on the whole adventure since it was opened. The newest can be taken back, and what
// was taken back done once more, as long as their steps are kept: see HistoryStep.
class CommandHistory
{
public:
    // What has become of a step: it is there, or the command cannot be taken back (or done once
    // more) any more, and this is why.
    enum class Step {
        Kept,
        TooOld, // there are enough newer ones
        Unwritten,
        Spoilt,  // it was there, and is no good any more
        Blocked, // it comes behind one that is not kept either
    };
    struct Command {
        int id = 0; // also that of its step
        QString title;
        QDateTime time;
        int changed = 0; // paragraphs with another text, number, mark or list
        int moved = 0;   // of them those with another number
        std::optional<NumberMap> numbers;
        qint64 bytes = 0; // of its step
        Step step = Step::Unwritten;
        bool kept() const { return step == Step::Kept; }
        bool operator==(const Command &) const = default;
    };
    static Command commandOf(int id, const HistoryStep &step, qint64 bytes);

    // The oldest first. What is no longer kept stays in the list.
    const QList<Command> &done() const { return m_done; }
    // Whether these are all since the adventure was opened. After a crash nobody knows: what could
    // not be taken back any more is not in the list.
    bool isWhole() const { return m_whole; }
    // The next to be done once more last.
    const QList<Command> &undone() const { return m_undone; }

    // The command that is taken back next, or done once more; nothing when none can be.
    std::optional<Command> nextToTakeBack() const { return lastKept(m_done); }
    std::optional<Command> nextToRedo() const { return lastKept(m_undone); }

    // How many commands are taken back, or done once more, down to this one and with it; 0 when
    // that cannot be.
    int countToTakeBack(int id) const { return countDownTo(m_done, id); }
    int countToRedo(int id) const { return countDownTo(m_undone, id); }

    // An id that no command had yet.
    int newId() const { return m_lastId + 1; }

    // A command was done. One that has no step keeps all before it from being taken back.
    void add(const Command &command);
    // The last commands were taken back: these, the newest first, do them once more.
    void takenBack(const QList<Command> &redoing);
    // The last that were taken back were done again: these take them back once more.
    void redone(const QList<Command> &takingBack);
    // What a start after a crash finds.
    void restore(const QList<Command> &done, const QList<Command> &undone);
    // A step is no good any more: neither it nor what lies behind it is offered.
    void lose(int id);

    // The ids of the steps that are kept.
    QList<int> keptDone() const { return keptIds(m_done); }
    QList<int> keptUndone() const { return keptIds(m_undone); }

    bool operator==(const CommandHistory &) const = default;

    static constexpr int MostKept = 50;

private:
    static std::optional<Command> lastKept(const QList<Command> &commands);
    static int countDownTo(const QList<Command> &commands, int id);
    static QList<int> keptIds(const QList<Command> &commands);
    void append(QList<Command> &commands, const Command &command);
    void dropOldest();

    QList<Command> m_done;
    QList<Command> m_undone;
    int m_lastId = 0;
    bool m_whole = true;
};

// Announces the command that was noted since newId() of the history was this, and how it is taken
// back: "MasterMix 1 à 400 : fait. Ctrl+Alt+Z l'annule."; the words of its own, if it has any, come
// first, and alone when it changed nothing.
void announceDone(const Variables &variables, WorkReport &report, int newId,
                  const QString &words = {});

// The history of the steps that a session names. One that is not whole is left out, and so is what
// lies behind it in its list.
CommandHistory keptHistory(const QString &workingFolder, const QList<int> &done,
                           const QList<int> &undone);

// Removes the steps that the history does not keep. What cannot be removed is harmless.
void removeOtherSteps(const QString &workingFolder, const CommandHistory &history);

// The open adventure is left, or another version of it: nothing can be taken back any more.
void forgetHistory(Variables &variables);
