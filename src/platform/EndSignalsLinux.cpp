#include "platform/EndSignals.h"

#include <QSocketNotifier>
#include <csignal>
#include <optional>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace
{
sigset_t endSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    return signals;
}
} // namespace

// The signals are held back and read from a descriptor, so that what they call may do anything.
class EndSignals::Watch
{
public:
    explicit Watch(std::function<void()> last) : m_last(std::move(last))
    {
        const sigset_t signals = endSignals();
        m_descriptor = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
        if (m_descriptor < 0)
            return;
        m_notifier.emplace(m_descriptor, QSocketNotifier::Read);
        QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier,
                         [this] { end(); });
    }

    ~Watch()
    {
        m_notifier.reset();
        if (m_descriptor < 0)
            return;
        ::close(m_descriptor);
        letThrough();
    }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

private:
    static void letThrough()
    {
        const sigset_t signals = endSignals();
        ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    }

    void end()
    {
        signalfd_siginfo info{};
        if (::read(m_descriptor, &info, sizeof info) != ssize_t{sizeof info})
            return;
        m_last();
        letThrough();
        ::raise(static_cast<int>(info.ssi_signo));
    }

    std::function<void()> m_last;
    int m_descriptor = -1;
    std::optional<QSocketNotifier> m_notifier;
};

void EndSignals::holdBack()
{
    const sigset_t signals = endSignals();
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

EndSignals::EndSignals(std::function<void()> last)
    : m_watch(std::make_unique<Watch>(std::move(last)))
{
}

EndSignals::~EndSignals() = default;
