#pragma once

#include "store/references/ReferenceDoubts.h"

#include <QRegularExpression>
#include <optional>
#include <vector>

// A number that is not read as a reference although an author means one: why, and how many
// characters before and behind the number belong to it.
struct Unread {
    Doubt doubt;
    qsizetype before;
    qsizetype behind = 0;
};

// The French words by which one sees, before a number, that a reference is meant.
class ReferenceLeaders
{
public:
    // What is shown while one writes, or what is listed when the whole book is checked, which may
    // be wrong more often.
    enum class Reach { Usual, Wide };

    // core: the words of the target phrase, "au" for the usual one.
    ReferenceLeaders(const QString &core, Reach reach);

    // before ends at the number, behind begins there; a line feed is the end of a line.
    std::optional<Unread> find(const QString &before, const QString &behind) const;

private:
    struct Leader {
        Doubt doubt;
        QRegularExpression before; // up to the number; its first group, or all of it, is marked
        QRegularExpression behind;
    };
    void addUsual(const QString &core);
    void addWide();
    void add(Doubt doubt, const QString &before, const QString &behind = {});

    std::vector<Leader> m_leaders;
};
