#pragma once

#include "Folder.h"
#include "Operations.h"
#include "ToolRun.h"

#include <optional>

// How file calls go wrong, one way after the other.
struct Mode {
    QString name;
    FaultyCalls::Fault fault;
    int error;
    bool restartsKilled; // the starts behind it are killed as well, at every call of theirs
};

const QList<Mode> &modes();

// What was tried, and what did not survive.
struct Tally {
    int tried = 0;
    int survived = 0;
    QStringList losses; // one line each
};

// Makes every call of an operation go wrong, one in each run, and looks at what is left.
//
// A run that failed has said why and left everything as before or as after the step that failed;
// one that succeeded has done everything. After a kill, the next start recovers the state before or
// after the step that was cut off, unsaved work and all. In all cases the program then works, and
// no file of the fault is left but those set aside. An adventure that somebody takes away is saved
// again, or is whole where it was taken to.
class Sweep
{
public:
    Sweep(const ToolRun &run, const Operation &operation, const Files &start);

    // every: 1 takes all calls, 2 every second one, and so on; offset moves the first. At least one
    // is taken when there is any.
    Tally tally(const Mode &mode, int every, int offset) const;

    // For faults that come from elsewhere: puts everything back, gives the commands to run, and
    // says what was lost when they were. Nothing, when all is well.
    void begin() const;
    QStringList script() const;
    QString loss(const RunResult &result) const;

private:
    // What counts of a folder: the adventure's texts, and the other files' bytes.
    struct State {
        QByteArray adventure;
        QMap<QString, QByteArray> products;
    };

    State look() const;
    State stateAfter(int steps, const QStringList &end) const;
    int last() const;
    QString fault(const Mode &mode, int call) const;
    QString judge(const RunResult &result) const;
    QString compare(const State &found, const QList<State> &allowed) const;
    QString next() const;
    void restartKilled() const;
    void putBack() const;

    const ToolRun &m_run;
    const Operation &m_operation;
    const Files m_start;
    // By the number of steps that were done: with all of it saved, and without what was unsaved.
    QList<State> m_saved;
    QList<State> m_dropped;
    QStringList m_left; // the files that are there when the author went on without a fault
};
