#pragma once

#include "platform/Errors.h"
#include "platform/Prompts.h"

// "2, 9." for a message: the first twenty tell enough, and then it ends in "...".
QString paragraphNames(const QList<int> &paragraphs);

// Tells the author of a failure for which the command has no words of its own. A limit is met in
// what is written, a wrong form in what is read; what the author did not allow is no failure.
void reportFailure(Prompts &prompts, const UsmiraError &error);

// What the author is told of such a failure.
QString failureText(const UsmiraError &error);

// The words of a command, and on a line of its own below them which file and why, in French:
// "/home/moi/Le Loup.usm : le disque est plein.". What is not known is left out.
QString failureText(const QString &words, const UsmiraError &error);

// The same on one line, for a status line.
QString failureLine(const QString &words, const UsmiraError &error);

// Tells the author of a failure that nobody foresaw, such as memory that is all used.
void reportUnforeseen(Prompts &prompts);

// Runs action, which returns whether it succeeded. A failure of any kind is reported and gives
// false.
template <typename Action> bool reportingFailures(Prompts &prompts, Action action)
{
    try {
        return action();
    } catch (const UsmiraError &error) {
        reportFailure(prompts, error);
        return false;
    } catch (const std::exception &) {
        reportUnforeseen(prompts);
        return false;
    }
}
