#pragma once

#include "store/HistoryStep.h"

#include <QList>
#include <optional>

// The way of a reader through the book. He goes back on it and takes another turning; the way that
// he leaves is kept, and comes back when he takes its turning again, or wants it back.
class ReadingWay
{
public:
    // As many ways as are kept; the one left first goes first.
    static constexpr qsizetype MostKept = 100;

    // From the start to the end; what lies behind at() is where he has gone back from.
    const QList<int> &steps() const { return m_steps; }
    qsizetype at() const { return m_at; }
    // The paragraph where he is; nothing before the first reading begins.
    std::optional<int> current() const;

    void clear();

    // He comes by these steps, which are at least one, from a start to where he is then.
    void come(const QList<int> &steps);

    // He goes on from where he is.
    void goOn(const QList<int> &steps);

    // He goes to one of the steps() that there are.
    void returnTo(qsizetype step) { m_at = step; }

    // One step forward on the way, or at its end the way that was left last, to its end. The one
    // that is there is then the last to come back.
    bool canRestore() const;
    void restore();

    // Paragraphs have other numbers; all ways lead to the same texts.
    void follow(const NumberMap &newNumbers);

private:
    void keepSteps();

    QList<int> m_steps;
    qsizetype m_at = 0;
    QList<QList<int>> m_kept; // the one left last is the last
};
