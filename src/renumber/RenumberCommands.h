#pragma once

#include "platform/Prompts.h"
#include "renumber/RenumberParagraphs.h"
#include "renumber/RenumberPlans.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <functional>

class WorkReport;

// The commands that give paragraphs other numbers, behind their dialogs: each checks its numbers as
// they were typed, builds a map and renumbers. They return whether they are done, so that the
// dialog closes. When a number is refused, the author says No or a file fails, the author has been
// told, nothing has changed and the dialog stays.
//
// Where references would be garbled the author is asked before it begins, after all else, whether
// they are to be mended first.
//
// The current paragraph must have been saved, and its number is to be shown again afterwards.
class RenumberCommands
{
    Q_DECLARE_TR_FUNCTIONS(RenumberCommands)

public:
    RenumberCommands(Variables &variables, Prompts &prompts, WorkReport &report);

    // Exchanges two numbers.
    bool Swap(double a, double b);

    // Shuffles the numbers between low and high, both of which stay. random gives numbers within
    // [0, 1).
    bool MasterMix(double low, double high, const std::function<double()> &random);

    // Moves the numbers low..high by delta to the lower or the higher ones.
    bool MoveDown(double low, double high, double delta)
    {
        return MoveBlock(low, high, delta, Towards::Lower);
    }
    bool MoveUp(double low, double high, double delta)
    {
        return MoveBlock(low, high, delta, Towards::Higher);
    }

    // Closes up the empty numbers within low..high.
    bool PackHoles(double low, double high);

private:
    bool MoveBlock(double low, double high, double delta, Towards towards);
    bool mayMoveFixed(int a, int b);
    template <typename Plan, typename Action>
    bool carryOut(const Planned<Plan> &planned, const Action &action);
    bool renumber(const RenumberMap &map, const QString &title);
    std::optional<Garbled> askAboutGarbled(const RenumberMap &map);
    int countGarbled(const RenumberMap &map) const;

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
};
