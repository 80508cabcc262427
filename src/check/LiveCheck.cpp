#include "check/LiveCheck.h"

#include "store/AdventureEvents.h"
#include "store/Variables.h"

#include <QElapsedTimer>
#include <limits>

namespace
{
// Milliseconds. Who goes on writing, or from one paragraph to the next, is ahead of the check.
constexpr int Pause = 250;
constexpr qint64 AtATime = 8;
} // namespace

LiveCheck::LiveCheck(const Variables &variables) : m_variables(variables)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LiveCheck::work);
    const auto again = [this] { changedAt({}); };
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, [this](int n) { changedAt({n}); });
    connect(events, &AdventureEvents::textsChanged, this, &LiveCheck::changedAt);
    connect(events, &AdventureEvents::targetPhraseChanged, this, again);
    connect(events, &AdventureEvents::extrasChanged, this, again);
    connect(events, &AdventureEvents::adventureReplaced, this, &LiveCheck::begin);
    if (variables.AdventureOpen)
        begin();
}

void LiveCheck::begin()
{
    m_checked = false;
    m_book = {};
    m_texts = {};
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        m_unread.insert(m_unread.end(), n);
    m_timer.start(Pause);
    Q_EMIT changed();
}

void LiveCheck::changedAt(const QList<int> &numbers)
{
    m_unread.insert(numbers.begin(), numbers.end());
    m_timer.start(Pause);
}

void LiveCheck::work()
{
    readSome(AtATime);
    if (m_unread.empty())
        check();
    else
        m_timer.start(0);
}

void LiveCheck::bringUpToDate()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    readSome(std::numeric_limits<qint64>::max());
    check();
}

void LiveCheck::readSome(qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_unread.empty() && timer.elapsed() < milliseconds)
        m_texts.read(m_variables, m_unread.extract(m_unread.begin()).value());
}

void LiveCheck::check()
{
    m_book = CheckBook(m_variables, m_texts);
    m_checked = true;
    Q_EMIT changed();
}
