#pragma once

#include "platform/Errors.h"
#include "platform/Prompts.h"

// Tells the author of a failure for which the command has no words of its own.
void reportFailure(Prompts &prompts, const UsmiraError &error);

// Runs action, which returns whether it succeeded. A failure is reported and gives false.
template <typename Action> bool reportingFailures(Prompts &prompts, Action action)
{
    try {
        return action();
    } catch (const UsmiraError &error) {
        reportFailure(prompts, error);
        return false;
    }
}
