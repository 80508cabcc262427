#pragma once

#include "platform/Failures.h"

#include <QObject>

// Connects a handler that takes no arguments. No exception may cross Qt's event loop: a failure is
// reported to the author and the program goes on.
template <typename Sender, typename Signal, typename Handler>
void connectGuarded(const Sender *sender, Signal signal, const QObject *receiver, Prompts &prompts,
                    Handler handler)
{
    QObject::connect(sender, signal, receiver, [&prompts, handler] {
        reportingFailures(prompts, [&] {
            handler();
            return true;
        });
    });
}
