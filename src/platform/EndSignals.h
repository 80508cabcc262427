#pragma once

#include <functional>
#include <memory>

// Somebody ends the program from outside: a logout, kill, Ctrl+C in its terminal. While it lives,
// such a signal calls last(), from the event loop, and then ends the program as it would have
// without: no window is asked, no destructor is run. On a system without such signals nothing
// happens.
class EndSignals
{
public:
    // To be called before the program has other threads: one of theirs would be hit otherwise. What
    // is sent from then on waits for the event loop.
    static void holdBack();

    explicit EndSignals(std::function<void()> last);
    ~EndSignals();
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;

private:
    class Watch;
    std::unique_ptr<Watch> m_watch;
};
