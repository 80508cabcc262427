#pragma once

#include "store/HistoryStep.h"

#include <QList>
#include <optional>

// The way of the author through the paragraphs, to go back and forward on. A paragraph stands on it
// as often as it was visited.
class VisitHistory
{
public:
    void clear();

    // The author went from one paragraph to another; what he had gone back from is forgotten.
    void go(int from, int to);

    // Paragraphs have other numbers; it leads to the same texts.
    void follow(const NumberMap &newNumbers);

    // The paragraph visited before and after the current one on the way.
    std::optional<int> before() const;
    std::optional<int> after() const;

    // The author has gone there.
    void stepBack() { --m_at; }
    void stepForward() { ++m_at; }

private:
    QList<int> m_way;
    qsizetype m_at = 0;
};
