#pragma once

#include "platform/Prompts.h"
#include "renumber/history/TakeBack.h"
#include "store/CommandHistory.h"

#include <QCoreApplication>
#include <optional>

class ParagraphTransaction;
class WorkReport;

// Takes commands on the whole adventure back, and does them once more. All paragraphs change or
// none does, and the current paragraph follows its text to its number. They return whether anything
// was done: else there was nothing to do, the author said "Annuler" or was told what failed, and
// nothing has changed.
//
// The current paragraph must have been saved, and its number is to be shown again afterwards.
class HistoryCommands
{
    Q_DECLARE_TR_FUNCTIONS(HistoryCommands)

public:
    HistoryCommands(Variables &variables, Prompts &prompts, WorkReport &report);

    // The newest command.
    bool takeBack();
    // All commands down to this one, and it, at once.
    bool takeBackTo(int id);
    // The command that was taken back last.
    bool redo();
    // All that were taken back since this one, and it, at once.
    bool redoTo(int id);

private:
    enum class Way { Back, Again };
    struct Step {
        CommandHistory::Command command;
        std::shared_ptr<StepFile> file;
    };
    using Steps = QList<Step>; // in the order in which they are taken back

    bool run(Way way, int count);
    Steps stepsOf(Way way, int count) const;
    std::optional<TakeBack::Edited> askAboutEdited(Way way, const Steps &steps);
    static std::optional<NumberMap> numbersAfter(const Steps &steps);
    void apply(Way way, const Steps &steps, TakeBack::Edited edited);
    CommandHistory::Command noteReverse(const Step &step, int id, BookTexts &from,
                                        BookTexts &to) const;
    void change(ParagraphTransaction &transaction, const BookTexts &to) const;
    void tell(Way way, const Steps &steps, bool reversible) const;
    void lose(Way way, const StepLost &lost);

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
};
